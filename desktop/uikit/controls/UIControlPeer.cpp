#include "controls/UIControlPeer.h"

#include "RectGeometry.h"
#include "UIKit/UIEvent.h"

#include <utility>

namespace {

/// How far a finger may stray from a control's edges and still counts as inside; points.
constexpr double trackingMargin = 70;

constexpr bool intersect(UIControlEvents left, UIControlEvents right) {
    return (static_cast<unsigned>(left) & static_cast<unsigned>(right)) != 0;
}

} // namespace

UIControlPeer::UIControlPeer() {
    setAccessibility({.label = {}, .value = {}, .role = AccessibilityRole::Button, .isElement = true});
}

UIControl& UIControlPeer::control() const {
    return dynamic_cast<UIControl&>(view());
}

void UIControlPeer::setEnabled(bool enabled) {
    if (enabled_ == enabled)
        return;
    const auto kept = retain(&control());
    enabled_ = enabled;
    if (!enabled)
        cancelTracking(nullptr);
    stateDidChange();
}

void UIControlPeer::setHighlighted(bool highlighted) {
    if (highlighted_ == highlighted)
        return;
    highlighted_ = highlighted;
    stateDidChange();
}

void UIControlPeer::setHorizontalAlignment(UIControlContentHorizontalAlignment alignment) {
    horizontalAlignment_ = alignment;
    setNeedsLayout();
}

void UIControlPeer::setVerticalAlignment(UIControlContentVerticalAlignment alignment) {
    verticalAlignment_ = alignment;
    setNeedsLayout();
}

void UIControlPeer::addTarget(NSObject& target, std::string selector, UIControlEvents events) {
    targets_.push_back(
        {.target = Weak<NSObject>(&target), .selector = std::move(selector), .events = events});
}

void UIControlPeer::addHandler(UIControlEvents events, std::function<void()> handler) {
    handlers_.push_back({.events = events, .call = std::move(handler)});
}

void UIControlPeer::sendActions(UIControlEvents events, UIEvent* event) {
    const auto kept = retain(&control());
    for (const auto& handler : std::vector(handlers_)) {
        if (intersect(handler.events, events))
            handler.call();
    }
    for (const auto& [weakTarget, selector, mask] : std::vector(targets_)) {
        const auto target = weakTarget.strong();
        if (target && intersect(mask, events))
            target->performSelector(selector, {Ref<NSObject>(kept), Ref<NSObject>(retain(event))});
    }
}

void UIControlPeer::touchBegan(DesktopTouch& touch, UIEvent& event) {
    if (!enabled_ || tracked_)
        return;
    const auto kept = retain(&control());
    const auto tracked = retain(&touch);
    tracked_ = tracked;
    touchInside_ = true;
    const auto begins = control().beginTrackingWithTouch(touch, &event);
    if (tracked_ != tracked)
        return;
    if (!begins) {
        stopTracking();
        return;
    }
    setHighlighted(true);
    sendActions(UIControlEvents::TouchDown, &event);
}

void UIControlPeer::touchMoved(DesktopTouch& touch, UIEvent& event) {
    if (tracked_.get() != &touch)
        return;
    const auto kept = retain(&control());
    const auto tracked = tracked_;
    const auto wasInside = std::exchange(touchInside_, isInside(touch));
    const auto continues = control().continueTrackingWithTouch(touch, &event);
    if (tracked_ != tracked)
        return;
    if (!continues) {
        stopTracking();
        return;
    }
    const auto inside = touchInside_;
    setHighlighted(inside);
    if (wasInside != inside)
        sendActions(inside ? UIControlEvents::TouchDragEnter : UIControlEvents::TouchDragExit, &event);
    if (tracked_ == tracked)
        sendActions(inside ? UIControlEvents::TouchDragInside : UIControlEvents::TouchDragOutside, &event);
}

void UIControlPeer::touchEnded(DesktopTouch& touch, UIEvent& event) {
    if (tracked_.get() != &touch)
        return;
    const auto kept = retain(&control());
    const auto inside = isInside(touch);
    stopTracking();
    control().endTrackingWithTouch(touch, &event);
    sendActions(inside ? UIControlEvents::TouchUpInside : UIControlEvents::TouchUpOutside, &event);
}

void UIControlPeer::touchCancelled(DesktopTouch& touch, UIEvent& event) {
    if (tracked_.get() == &touch)
        cancelTracking(&event);
}

void UIControlPeer::didMoveToWindow() {
    if (window() == nullptr)
        cancelTracking(nullptr);
}

bool UIControlPeer::isInside(const DesktopTouch& touch) const {
    constexpr UIEdgeInsets grown{
        .top = -trackingMargin, .left = -trackingMargin, .bottom = -trackingMargin, .right = -trackingMargin};
    return CGRectContainsPoint(UIEdgeInsetsInsetRect(view().bounds(), grown), touch.locationInView(view()));
}

void UIControlPeer::stopTracking() {
    tracked_ = nullptr;
    touchInside_ = false;
    setHighlighted(false);
}

void UIControlPeer::cancelTracking(UIEvent* event) {
    if (!tracked_)
        return;
    const auto kept = retain(&control());
    stopTracking();
    control().cancelTrackingWithEvent(event);
    sendActions(UIControlEvents::TouchCancel, event);
}
