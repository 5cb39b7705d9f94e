#include "DesktopBundle.h"
#include "LoadedBundles.h"
#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "ProcessorTime.h"
#include "TestDevice.h"
#include "UIKit/UINavigationController.h"
#include "screen/Compositor.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"

#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Measures a page of 10,000 rows against one of 100, in one run, on a phone at 3x: opening it, from its
/// first place in a window to its first picture, and a frame of scrolling, at the list's start, middle and
/// end. Prints the times and their ratios; fails when opening costs more than three times or a frame more
/// than one and a half times as much, and when there was nothing to open or to scroll. The list's file is
/// read before that: what that takes goes with the file's length, and is printed alone.

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto bundlePath = "/var/jb/Library/PreferenceBundles/Lists.bundle";
constexpr auto fewRows = 100;
constexpr auto manyRows = 10000;
constexpr auto openings = 9;
constexpr auto framesAtPlace = 40;
constexpr auto pointsPerFrame = 30.0;
constexpr auto largestOpeningRatio = 3.0;
constexpr auto largestFrameRatio = 1.5;

class BenchPage final : public PSListController {
public:
    [[nodiscard]] Specifiers specifiers() override {
        if (cachedSpecifiers().empty())
            setCachedSpecifiers(loadSpecifiersFromPlistName(list, *this));
        return cachedSpecifiers();
    }

    std::string list;
};

const Class pageClass = Class::define<BenchPage, PSListController>("BenchPage");

struct Times {
    Milliseconds reading{};
    Milliseconds opening{};
    Milliseconds frame{};
};

[[noreturn]] void fail(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(EXIT_FAILURE);
}

void writeList(const TestDevice& device, const std::string& name, int rows) {
    std::string list = R"(<plist version="1.0"><dict><key>items</key><array>)";
    for (auto row = 0; row < rows; ++row)
        list += "<dict><key>cell</key><string>" + std::string(row % 3 == 0 ? "PSSwitchCell" : "PSLinkCell") +
                "</string><key>id</key><string>" + std::to_string(row) +
                "</string><key>label</key><string>Row " + std::to_string(row) + "</string></dict>";
    device.write(std::string(bundlePath) + "/" + name + ".plist", list + "</array></dict></plist>");
}

/// A page whose list has been read.
Ref<BenchPage> makePage(const std::string& list, std::size_t rows) {
    auto page = make<BenchPage>();
    page->list = list;
    if (page->specifiers().size() != rows)
        fail("the list " + list + " has not been read");
    return page;
}

/// A page on the whole screen.
class OpenedList {
public:
    explicit OpenedList(const Ref<BenchPage>& page) : page_(page) {
        Screen::current().addWindow(window_);
        navigation_->pushViewController(page_, false);
        window_->setRootViewController(navigation_);
        Screen::current().layoutIfNeeded();
    }

    ~OpenedList() { Screen::current().removeWindow(*window_); }

    OpenedList(const OpenedList&) = delete;
    OpenedList& operator=(const OpenedList&) = delete;

    [[nodiscard]] UITableViewPeer& table() const { return peerOf<PSListControllerPeer>(*page_).table(); }

private:
    Ref<UIWindow> window_ = make<UIWindow>();
    Ref<UINavigationController> navigation_ = make<UINavigationController>();
    Ref<BenchPage> page_;
};

template <class Work>
Milliseconds timeOf(Work work) {
    const auto begin = processorTime();
    work();
    return processorTime() - begin;
}

Milliseconds openingTime(Compositor& compositor, const std::string& list, std::size_t rows) {
    const auto page = makePage(list, rows);
    compositor.forgetPicture();
    std::unique_ptr<OpenedList> opened;
    const auto time = timeOf([&] {
        opened = std::make_unique<OpenedList>(page);
        compositor.render();
    });
    if (opened->table().cells().empty() || opened->table().layout().rowCount(0) != rows)
        fail("the list " + list + " did not open");
    return time;
}

/// The mean of the frames at the list's start, middle and end.
Milliseconds frameTime(Compositor& compositor, const std::string& list, std::size_t rows) {
    const OpenedList opened(makePage(list, rows));
    auto& table = opened.table();
    const auto end = table.maximumOffset().y - framesAtPlace * pointsPerFrame;
    Milliseconds sum{};
    for (const auto start : {0.0, end / 2, end}) {
        table.setContentOffset({0, start});
        compositor.render();
        for (auto frame = 1; frame <= framesAtPlace; ++frame) {
            table.setContentOffset({0, start + frame * pointsPerFrame});
            sum += timeOf([&] { compositor.render(); });
            if (compositor.lastDamage().isEmpty())
                fail("a frame of scrolling painted nothing");
        }
    }
    return sum / (3 * framesAtPlace);
}

/// The fastest of the openings, which other work on the machine has held up least; few and many rows take
/// turns.
std::pair<Times, Times> measure(Compositor& compositor) {
    std::vector<Milliseconds> few;
    std::vector<Milliseconds> many;
    for (auto count = 0; count < openings; ++count) {
        few.push_back(openingTime(compositor, "Few", fewRows));
        many.push_back(openingTime(compositor, "Many", manyRows));
    }
    std::ranges::sort(few);
    std::ranges::sort(many);
    return {{.reading = timeOf([] { static_cast<void>(makePage("Few", fewRows)); }),
             .opening = few.front(),
             .frame = frameTime(compositor, "Few", fewRows)},
            {.reading = timeOf([] { static_cast<void>(makePage("Many", manyRows)); }),
             .opening = many.front(),
             .frame = frameTime(compositor, "Many", manyRows)}};
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const TestDevice device;
    device.write(std::string(bundlePath) + "/Info.plist", "{}");
    LoadedBundles::shared().addClass(pageClass, DesktopBundle::withPath(bundlePath));
    writeList(device, "Few", fewRows);
    writeList(device, "Many", manyRows);
    Screen screen({.idiom = Idiom::Phone, .style = UserInterfaceStyle::Light, .scale = 3, .size = {}});
    Compositor compositor(screen);
    const auto [few, many] = measure(compositor);
    const auto opening = many.opening / few.opening;
    const auto frame = many.frame / few.frame;
    std::printf("reading %d rows: %.2f ms; %d rows: %.2f ms\n", fewRows, few.reading.count(), manyRows,
                many.reading.count());
    std::printf("opening %d rows: %.2f ms; %d rows: %.2f ms; ratio %.2f (at most %.1f)\n", fewRows,
                few.opening.count(), manyRows, many.opening.count(), opening, largestOpeningRatio);
    std::printf("a frame of scrolling them: %.2f ms and %.2f ms; ratio %.2f (at most %.1f)\n",
                few.frame.count(), many.frame.count(), frame, largestFrameRatio);
    return opening <= largestOpeningRatio && frame <= largestFrameRatio ? EXIT_SUCCESS : EXIT_FAILURE;
}
