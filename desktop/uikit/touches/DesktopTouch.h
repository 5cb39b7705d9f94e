#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UITouch.h"
#include "touches/TouchPhase.h"

#include <chrono>

/// A finger on the screen. Made by the touch dispatcher, which moves it.
class DesktopTouch final : public UITouch {
public:
    /// \param place in points of the screen; \param time uptime
    DesktopTouch(CGPoint place, std::chrono::nanoseconds time) : place_(place), time_(time) {}

    void moveTo(CGPoint place, TouchPhase phase, std::chrono::nanoseconds time);

    [[nodiscard]] CGPoint place() const { return place_; }

    [[nodiscard]] TouchPhase phase() const { return phase_; }

    [[nodiscard]] std::chrono::nanoseconds time() const { return time_; }

    /// The view that the finger came down in, for as long as it lives.
    [[nodiscard]] Ref<UIView> view() const { return view_.strong(); }

    void setView(const Ref<UIView>& view) { view_ = view; }

    /// Whether views have been told of the touch, and not that it is cancelled.
    [[nodiscard]] bool isDelivered() const { return delivered_; }

    void setDelivered(bool delivered) { delivered_ = delivered; }

    // UITouch:
    [[nodiscard]] CGPoint locationInView(const UIView& view) const override;

private:
    CGPoint place_;
    TouchPhase phase_ = TouchPhase::Began;
    std::chrono::nanoseconds time_;
    Weak<UIView> view_;
    bool delivered_ = false;
};
