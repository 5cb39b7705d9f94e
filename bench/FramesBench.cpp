#include "PaneScenes.h"
#include "PictureMemory.h"
#include "ProcessorTime.h"
#include "SceneFrames.h"

#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

/// Measures the frames of everything that moves in the pane, on a phone at 3x, on a tablet at 2x, and on a
/// phone in a window at 1x: what a frame takes from its touch or its moment on until its picture is there, in
/// processor time of all threads, and how many pixels it painted. Prints, for each scene, the first frame,
/// the median, the 95th percentile, what a copy of the whole picture took right after the scene, and the
/// median as so many times that. Fails when a scene is not good (`SceneFrames`). A picture at 1x is copied
/// within the processor's cache, which tells nothing of painting; there, a scene is to take less than at 3x.

namespace {

double now() {
    return processorTime().count();
}

/// In milliseconds.
double timeOfCopy(const QImage& picture, QImage& copy) {
    constexpr auto turns = 51;
    if (copy.size() != picture.size())
        copy = QImage(picture.size(), picture.format());
    std::vector<double> times;
    for (auto turn = 0; turn < turns; ++turn) {
        const auto begin = now();
        std::memcpy(copy.bits(), picture.constBits(), static_cast<std::size_t>(picture.sizeInBytes()));
        times.push_back(now() - begin);
    }
    return quantile(times, 0.5);
}

class FramesBench final : public PaneScenes {
public:
    using PaneScenes::PaneScenes;

    [[nodiscard]] std::vector<SceneFrames> run() {
        play();
        if (Screen::current().traits().idiom == Idiom::Phone)
            playOpeningAgain();
        std::printf("  %-28s %6s %8s %8s %8s %8s %8s %10s\n", "", "frames", "first", "median", "95th",
                    "a copy", "copies", "pixels");
        for (const auto& scene : scenes_)
            scene.print();
        return scenes_;
    }

protected:
    void sceneBegins(std::string_view name) override {
        scenes_.emplace_back(std::string(name));
        isPlaying_ = true;
        begin_ = now();
    }

    void frame() override {
        picture_ = &compositor().render();
        const auto end = now();
        auto pixels = 0.0;
        for (const auto& rect : compositor().lastDamage())
            pixels += static_cast<double>(rect.width()) * rect.height();
        if (isPlaying_)
            scenes_.back().add(end - begin_, pixels);
        begin_ = now();
    }

    void sceneEnds() override {
        isPlaying_ = false;
        if (picture_ != nullptr)
            scenes_.back().setTimeOfCopy(timeOfCopy(*picture_, copy_));
    }

private:
    std::vector<SceneFrames> scenes_;
    const QImage* picture_ = nullptr; ///< the last frame's
    QImage copy_;
    bool isPlaying_ = false;
    double begin_ = 0;
};

} // namespace

int main(int argc, char** argv) {
    giveBackPictureMemory();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    std::printf("frames, in milliseconds of processor time; phone, 1170 x 2532 pixels\n");
    const auto phone = FramesBench({.idiom = Idiom::Phone, .scale = 3, .size = {}}).run();
    std::printf("tablet, 1640 x 2360 pixels\n");
    const auto pad = FramesBench({.idiom = Idiom::Pad, .scale = 2, .size = {}}).run();
    std::printf("phone, 390 x 844 pixels\n");
    const auto window = FramesBench({.idiom = Idiom::Phone, .scale = 1, .size = {}}).run();
    const bool isGood = std::ranges::all_of(phone, &SceneFrames::isGood) &&
                        std::ranges::all_of(pad, &SceneFrames::isGood) &&
                        std::ranges::equal(window, phone, &SceneFrames::isFasterThan);
    return isGood ? EXIT_SUCCESS : EXIT_FAILURE;
}
