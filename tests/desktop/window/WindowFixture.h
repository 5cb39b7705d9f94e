#pragma once

#include "DeviceWindow.h"
#include "Phone.h"
#include "UIKit/UIControl.h"
#include "controls/UIControlPeer.h"

#include <QKeyEvent>
#include <QMouseEvent>

/// A phone with two buttons and a label on its screen, in a window of half its size.
class WindowFixture : public Phone {
protected:
    explicit WindowFixture(const TestDevice::Settings& settings = {});

    void click(QPointF place);
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
    DeviceWindow shown;
};
