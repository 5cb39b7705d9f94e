#pragma once

#include "DeviceWindow.h"
#include "Phone.h"
#include "UIKit/UIControl.h"
#include "controls/UIControlPeer.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <chrono>

/// A phone with two buttons and a label on its screen, in a window of half its size.
class WindowFixture : public Phone {
protected:
    explicit WindowFixture(const TestDevice::Settings& settings = {});

    void click(QPointF place);
    /// One event of the mouse, at a place of the window; the window does nothing more yet.
    void send(QEvent::Type type, QPointF place = {60, 61});
    void press(Qt::Key key);
    /// Lets the window do what it wants to do at once.
    static void run();

    static constexpr CGRect firstFrame = CGRectMake(20, 100, 200, 44);
    static constexpr CGRect secondFrame = CGRectMake(20, 200, 200, 44);

    Ref<UIControl> first_;
    Ref<UIControl> second_;
    int firstPresses_ = 0;
    int secondPresses_ = 0;
    int timesBack_ = 0;
    std::chrono::nanoseconds betweenFrames_{}; ///< that pass when the window begins a frame; none at first
    std::chrono::nanoseconds timeOfPicture_{}; ///< the last one's
    DeviceWindow shown;
};
