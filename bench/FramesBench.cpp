#include "PaneScenes.h"
#include "PictureMemory.h"
#include "ProcessorTime.h"

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
/// run. Fails when a scene painted nothing, or when its median is far above what is wanted (15 copies).

namespace {

using Milliseconds = std::vector<double>;

constexpr auto mostCopies =
    25.0; ///< generous, since other work slows a copy down less than what has branches

double now() {
    return processorTime().count();
}

/// The value that a part of all is not above. \pre there are some
double quantile(std::vector<double> values, double part) {
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

double timeOfCopy(const QImage& picture) {
    constexpr auto turns = 101;
    QImage copy(picture.size(), picture.format());
    Milliseconds times;
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
        const auto copy = timeOfCopy(compositor().render());
        std::printf("  a copy of the picture takes %.2f ms\n", copy);
        std::printf("  %-28s %6s %8s %8s %8s %8s %10s\n", "", "frames", "first", "median", "95th", "copies",
                    "pixels");
        for (const auto& scene : scenes_)
            print(scene, copy);
        return std::ranges::all_of(scenes_, [copy](const auto& scene) {
            return !scene.times.empty() && quantile(scene.times, 0.5) <= mostCopies * copy;
        });
    }

protected:
    void sceneBegins(std::string_view name) override {
        scenes_.push_back({std::string(name), {}, {}});
        isPlaying_ = true;
        begin_ = now();
    }

    void frame() override {
        compositor().render();
        const auto end = now();
        auto pixels = 0.0;
        for (const auto& rect : compositor().lastDamage())
            pixels += static_cast<double>(rect.width()) * rect.height();
        if (isPlaying_ && pixels > 0) {
            scenes_.back().times.push_back(end - begin_);
            scenes_.back().pixels.push_back(pixels);
        }
        begin_ = now();
    }

    void sceneEnds() override { isPlaying_ = false; }

private:
    struct Scene {
        std::string name;
        Milliseconds times;
        std::vector<double> pixels;
    };

    static void print(const Scene& scene, double copy) {
        if (scene.times.empty()) {
            std::printf("  %-28s painted nothing\n", scene.name.c_str());
            return;
        }
        const auto median = quantile(scene.times, 0.5);
        std::printf("  %-28s %6zu %8.2f %8.2f %8.2f %8.1f %10.0f\n", scene.name.c_str(), scene.times.size(),
                    scene.times.front(), median, quantile(scene.times, 0.95), median / copy,
                    quantile(scene.pixels, 0.5));
    }

    std::vector<Scene> scenes_;
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
