// Everything that moves in the pane, in pictures that were brought up to date and in whole ones.

#include "PaneScenes.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <random>
#include <string>

namespace {

/// Compares, at random moments, the picture that frame after frame was brought up to date with one that
/// nothing was kept for.
class ComparedScenes final : public PaneScenes {
public:
    ComparedScenes(const Screen::Options& screen, unsigned seed) : PaneScenes(screen), random_(seed) {}

    /// How often, by scene, a picture was compared of which only a part or nothing was painted anew in its
    /// frame.
    std::map<std::string, int> compared;

protected:
    void sceneBegins(std::string_view name) override {
        scene_ = name;
        compared[scene_] = 0;
    }

    void frame() override {
        mallopt(M_PERTURB, oneByte); // what is made for a picture begins with that everywhere
        const auto& picture = compositor().render();
        constexpr auto framesBetween = 8;
        if (std::uniform_int_distribution(1, framesBetween)(random_) != 1)
            return;
        ++compared[scene_];
        mallopt(M_PERTURB, otherByte);
        Compositor whole(Screen::current());
        expectSame(picture, whole.render());
        whole.forgetPicture(); // the next is of pictures that layers keep, where the first was of their rows
        expectSame(picture, whole.render());
    }

    void sceneEnds() override { mallopt(M_PERTURB, 0); }

private:
    static constexpr auto oneByte = 0xEE;
    static constexpr auto otherByte = 0x11;

    void expectSame(const QImage& picture, const QImage& whole) const {
        ASSERT_EQ(picture.size(), whole.size());
        const auto rowBytes = static_cast<std::size_t>(picture.width()) * sizeof(QRgb);
        for (auto y = 0; y < picture.height(); ++y) {
            const auto* const left = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            const auto* const right = reinterpret_cast<const QRgb*>(whole.constScanLine(y));
            if (std::memcmp(left, right, rowBytes) == 0)
                continue; // at once, where pixel by pixel it would take a tenth of the scenes' time
            const auto* const differs = std::mismatch(left, left + picture.width(), right).first;
            ASSERT_EQ(differs, left + picture.width())
                << scene_ << ": pixel " << differs - left << ", " << y << " is " << std::hex << *differs
                << " in place of " << right[differs - left];
        }
    }

    std::mt19937 random_;
    std::string scene_;
};

class ScenePicturesTest : public testing::TestWithParam<Screen::Options> {};

TEST_P(ScenePicturesTest, APartlyPaintedPictureIsThatOfAWholeRepaint) {
    const auto seed = static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed());
    SCOPED_TRACE("seed " + std::to_string(seed));
    ComparedScenes scenes(GetParam(), seed);
    scenes.play();
    EXPECT_GE(scenes.compared.size(), 11U);
    auto compared = 0;
    for (const auto& [scene, times] : scenes.compared)
        compared += times;
    EXPECT_GT(compared, 40);
}

INSTANTIATE_TEST_SUITE_P(
    Screens, ScenePicturesTest,
    testing::Values(
        Screen::Options{.idiom = Idiom::Phone, .style = UserInterfaceStyle::Light, .scale = 3, .size = {}},
        Screen::Options{.idiom = Idiom::Phone, .style = UserInterfaceStyle::Dark, .scale = 1, .size = {}},
        Screen::Options{.idiom = Idiom::Pad, .style = UserInterfaceStyle::Light, .scale = 1, .size = {}}),
    [](const auto& tested) {
        return std::string(tested.param.idiom == Idiom::Pad ? "Pad" : "Phone") +
               std::to_string(static_cast<int>(tested.param.scale)) + "x";
    });

} // namespace
