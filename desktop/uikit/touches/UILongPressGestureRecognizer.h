#pragma once

#include "touches/GestureRecognizer.h"

/// A finger that is held still; the gesture lasts until it is lifted. Made by whoever adds it to a view.
class UILongPressGestureRecognizer final : public GestureRecognizer {
public:
    /// Half a second unless told otherwise.
    void setMinimumPressDuration(std::chrono::nanoseconds duration) { duration_ = duration; }

protected:
    // GestureRecognizer:
    void touchBegan(DesktopTouch& touch) override;
    void touchMoved(DesktopTouch& touch) override;
    void touchEnded(DesktopTouch& touch) override;

    void timeIsUp() override { begin(); }

private:
    std::chrono::nanoseconds duration_ = std::chrono::milliseconds(500);
    CGPoint start_;
};
