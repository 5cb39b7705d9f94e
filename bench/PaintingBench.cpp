#include "DeviceInstaller.h"
#include "DrivenShell.h"
#include "ProcessorTime.h"
#include "RectGeometry.h"
#include "TestDevice.h"
#include "controllers/DesktopNavigationItem.h"
#include "controllers/UIViewControllerPeer.h"
#include "screen/Compositor.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "views/UIViewPeer.h"

#include <QGuiApplication>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

/// Measures what a frame of the master switch's animation costs against painting the pane's whole page from
/// nothing, without pictures that were kept, in one run, on a phone at 3x. Prints both times and their ratio;
/// fails when the ratio is above 0.25, and when there was nothing to paint.

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto largestRatio = 0.25;
constexpr auto taps = 20;
constexpr auto framesOfTap = 18; ///< in the 0.3 seconds that the switch moves
constexpr auto frame = std::chrono::nanoseconds(std::chrono::seconds(1)) / 60;

[[noreturn]] void fail(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(EXIT_FAILURE);
}

/// The pane's page, in front and at rest, without the sheet that comes with its first opening. \returns what
/// its bar has for a title: the switch
Ref<UIView> openPane(TestDevice& device, DrivenShell& application) {
    const auto opened = application.open(std::nullopt);
    if (!opened)
        fail("the pane cannot be opened: " + opened.error());
    device.advance(std::chrono::seconds(1));
    if (auto* const sheet = Screen::current().presentations().top()) {
        sheet->dismissPresented();
        device.advance(std::chrono::seconds(1));
    }
    return application.page()->peer().navigationItem().titleView();
}

void tap(TouchDispatcher& touches, const UIView& view) {
    const auto place = view.peer().convertToScreen(view.bounds());
    const CGPoint middle{CGRectGetMidX(place), CGRectGetMidY(place)};
    touches.touch(TouchPhase::Began, middle);
    touches.touch(TouchPhase::Ended, middle);
}

/// The mean time of a frame while the switch goes from one side to the other, many times.
template <class Prepare>
Milliseconds frameTime(std::unique_ptr<Compositor>& compositor, TestDevice& device, const UIView& control,
                       Prepare prepare) {
    TouchDispatcher touches;
    Milliseconds sum{};
    for (auto count = 0; count < taps; ++count) {
        tap(touches, control);
        for (auto index = 0; index < framesOfTap; ++index) {
            device.advance(frame);
            prepare();
            const auto begin = processorTime();
            compositor->render();
            sum += processorTime() - begin;
            if (compositor->lastDamage().isEmpty())
                fail("a frame of the switch's animation painted nothing: the switch does not move");
        }
    }
    return sum / (taps * framesOfTap);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    TestDevice device;
    if (!DeviceInstaller(DEVICE_TREE).install(Device::current().root()))
        return EXIT_FAILURE;
    Screen screen({.idiom = Idiom::Phone, .style = UserInterfaceStyle::Light, .scale = 3, .size = {}});
    Shell shell;
    DrivenShell driven(shell);
    const auto control = openPane(device, driven);
    auto compositor = std::make_unique<Compositor>(screen);
    compositor->render();
    const auto part = frameTime(compositor, device, *control, [] {});
    const auto whole =
        frameTime(compositor, device, *control, [&] { compositor = std::make_unique<Compositor>(screen); });
    const auto ratio = part / whole;
    std::printf("a frame of the switch: %.2f ms; of the whole page: %.2f ms; ratio %.3f (at most %.2f)\n",
                part.count(), whole.count(), ratio, largestRatio);
    return ratio <= largestRatio ? EXIT_SUCCESS : EXIT_FAILURE;
}
