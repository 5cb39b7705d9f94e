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

/// Measures the frames of everything that moves in the pane, on a phone at 3x and on a tablet at 2x: what a
/// frame takes from its touch or its moment on until its picture is there, in processor time of all
/// threads, and how many pixels it painted. Prints, for each scene, the first frame, the median,
/// the 95th percentile, and the median as so many times what a copy of the whole picture takes in the same
/// run. Fails when a scene is not good (`SceneFrames`).

namespace {

double now() {
    return processorTime().count();
}

double timeOfCopy(const QImage& picture) {
    constexpr auto turns = 101;
    QImage copy(picture.size(), picture.format());
    std::vector<double> times; // in milliseconds
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

    /// \returns whether every scene painted something, and fast enough
    [[nodiscard]] bool run() {
        play();
        if (Screen::current().traits().idiom == Idiom::Phone)
            playOpeningAgain();
        const auto copy = timeOfCopy(compositor().render());
        std::printf("  a copy of the picture takes %.2f ms\n", copy);
        std::printf("  %-28s %6s %8s %8s %8s %8s %10s\n", "", "frames", "first", "median", "95th", "copies",
                    "pixels");
        for (const auto& scene : scenes_)
            scene.print(copy);
        return std::ranges::all_of(scenes_, [copy](const auto& scene) { return scene.isGood(copy); });
    }

protected:
    void sceneBegins(std::string_view name) override {
        scenes_.emplace_back(std::string(name));
        isPlaying_ = true;
        begin_ = now();
    }

    void frame() override {
        compositor().render();
        const auto end = now();
        auto pixels = 0.0;
        for (const auto& rect : compositor().lastDamage())
            pixels += static_cast<double>(rect.width()) * rect.height();
        if (isPlaying_)
            scenes_.back().add(end - begin_, pixels);
        begin_ = now();
    }

    void sceneEnds() override { isPlaying_ = false; }

private:
    std::vector<SceneFrames> scenes_;
    bool isPlaying_ = false;
    double begin_ = 0;
};

} // namespace

int main(int argc, char** argv) {
    giveBackPictureMemory();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    std::printf("frames, in milliseconds of processor time; phone, 1170 x 2532 pixels\n");
    const bool phone = FramesBench({.idiom = Idiom::Phone, .scale = 3, .size = {}}).run();
    std::printf("tablet, 1640 x 2360 pixels\n");
    const bool pad = FramesBench({.idiom = Idiom::Pad, .scale = 2, .size = {}}).run();
    return phone && pad ? EXIT_SUCCESS : EXIT_FAILURE;
}
