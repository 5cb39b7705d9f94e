#pragma once

#include "TestDevice.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "screen/UIWindow.h"
#include "views/UIViewPeer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

/// A phone's screen with a window, and a finger on it. What happens is written down in `events`.
class TouchFixture : public testing::Test {
protected:
    using Events = std::vector<std::string>;

    TouchFixture();
    ~TouchFixture() override;

    void down(double x, double y) { dispatcher.touch(TouchPhase::Began, {x, y}); }

    void move(double x, double y) { dispatcher.touch(TouchPhase::Moved, {x, y}); }

    void up(double x, double y) { dispatcher.touch(TouchPhase::Ended, {x, y}); }

    void cancel() { dispatcher.touch(TouchPhase::Cancelled, {}); }

    void tap(double x, double y) {
        down(x, y);
        up(x, y);
    }

    void advance(std::chrono::nanoseconds duration);
    void settle();

    /// What has happened since this was last asked.
    Events takeEvents();

    TestDevice device;
    Screen screen{{}};
    Events events;
    Ref<UIWindow> window = make<UIWindow>();
    TouchDispatcher dispatcher;
};
