#include "screen/TouchFixture.h"

#include <utility>

TouchFixture::TouchFixture() {
    screen.addWindow(window);
}

TouchFixture::~TouchFixture() {
    screen.removeWindow(*window);
}

void TouchFixture::advance(std::chrono::nanoseconds duration) {
    Device::current().mainQueue().advance(device.clock(), duration);
}

void TouchFixture::settle() {
    ASSERT_TRUE(Device::current().mainQueue().settle(device.clock(), std::chrono::minutes(1)));
}

TouchFixture::Events TouchFixture::takeEvents() {
    return std::exchange(events, {});
}
