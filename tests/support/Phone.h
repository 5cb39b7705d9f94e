#pragma once

#include "DeviceTest.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "screen/UIWindow.h"

/// A device with a screen, an application's window on it and a finger: a phone, unless a test asks for
/// another. What the tests of all that is shown and touched begin with.
class Phone : public DeviceTest {
protected:
    explicit Phone(const Screen::Options& options = {}, const TestDevice::Settings& settings = {});

    /// The finger and the window end while the test still has what they tell of it to.
    void TearDown() override;

    /// Has the window show a controller, or a view above what it shows, in all of it; laid out.
    void show(const Ref<UIViewController>& controller);
    void show(const Ref<UIView>& view);

    void layOut() { screen.layoutIfNeeded(); }

    // The finger, in points of the screen.
    void down(CGPoint place) { finger.touch(TouchPhase::Began, place); }

    void move(CGPoint place) { finger.touch(TouchPhase::Moved, place); }

    void up(CGPoint place) { finger.touch(TouchPhase::Ended, place); }

    void cancel() { finger.touch(TouchPhase::Cancelled, {}); }

    void tap(CGPoint place);
    /// In the middle of it.
    void tap(const UIView& view);
    /// Comes down and moves in steps, 16 ms each; it stays down.
    void drag(CGPoint from, CGPoint to, int steps = 10);

    [[nodiscard]] static CGRect screenFrame(const UIView& view);

    Screen screen;
    Ref<UIWindow> window = make<UIWindow>();
    TouchDispatcher finger;
};
