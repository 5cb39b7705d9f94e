#include "Phone.h"

#include "RectGeometry.h"
#include "views/UIViewPeer.h"

#include <chrono>

Phone::Phone(const Screen::Options& options, const TestDevice::Settings& settings)
    : DeviceTest(settings),
      screen(options) {
    screen.addWindow(window);
}

void Phone::TearDown() {
    cancel();
    if (window)
        screen.removeWindow(*window);
    window = nullptr;
}

void Phone::show(const Ref<UIViewController>& controller) {
    window->setRootViewController(controller);
    layOut();
}

void Phone::show(const Ref<UIView>& view) {
    view->setFrame(window->bounds());
    window->addSubview(view);
    layOut();
}

void Phone::tap(CGPoint place) {
    down(place);
    up(place);
}

void Phone::tap(const UIView& view) {
    const auto frame = screenFrame(view);
    tap(CGPoint{CGRectGetMidX(frame), CGRectGetMidY(frame)});
}

void Phone::drag(CGPoint from, CGPoint to, int steps) {
    constexpr auto stepTime = std::chrono::milliseconds(16);
    down(from);
    for (auto step = 1; step <= steps; ++step) {
        advance(stepTime);
        const auto part = static_cast<double>(step) / steps;
        move({from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part});
    }
}

CGRect Phone::screenFrame(const UIView& view) {
    return view.peer().convertToScreen(view.bounds());
}
