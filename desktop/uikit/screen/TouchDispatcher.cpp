#include "screen/TouchDispatcher.h"

#include "Device.h"
#include "Dispatch/MainQueue.h"
#include "UIKit/UIEvent.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

#include <utility>

namespace {

TouchDispatcher* currentDispatcher = nullptr;

std::chrono::nanoseconds now() {
    return Device::current().clock().uptime();
}

} // namespace

TouchDispatcher::TouchDispatcher() : arena_([this] { withdraw(); }) {
    currentDispatcher = this;
}

TouchDispatcher::~TouchDispatcher() {
    cancel();
    currentDispatcher = nullptr;
}

void TouchDispatcher::touch(TouchPhase phase, CGPoint place) {
    if (phase == TouchPhase::Began)
        begin(place);
    else if (!touch_)
        return;
    else if (phase == TouchPhase::Moved)
        move(place);
    else if (phase == TouchPhase::Ended)
        end(place);
    else
        cancel();
}

void TouchDispatcher::cancelTouchesIn(UIView& view) {
    if (currentDispatcher == nullptr)
        return;
    const auto kept = retain(&view);
    currentDispatcher->arena_.touchTakenFrom(view);
    const auto& touch = currentDispatcher->touch_;
    if (!touch)
        return;
    if (const auto touched = touch->view(); touched && touched->peer().isDescendantOf(view))
        currentDispatcher->withdraw();
}

void TouchDispatcher::begin(CGPoint place) {
    cancel();
    // Who was told of that may have brought a finger down in turn: that one came last.
    if (touch_)
        return;
    const auto touch = make<DesktopTouch>(place, now());
    const auto hit = retain(Screen::current().hitTest(place));
    touch_ = touch;
    delivery_ = hit ? Delivery::Held : Delivery::Withdrawn;
    if (!hit)
        return;
    touch->setView(hit);
    arena_.touchBegan(*touch, *hit);
    if (touch_ != touch)
        arena_.touchCancelled(*touch);
    if (touch_ != touch || delivery_ != Delivery::Held)
        return;
    const auto delay = arena_.holdTime(*hit);
    if (delay == std::chrono::nanoseconds::zero()) {
        deliverBegin();
        return;
    }
    MainQueue::after(delay, [touch] {
        if (currentDispatcher != nullptr && currentDispatcher->touch_ == touch)
            currentDispatcher->deliverBegin();
    });
}

void TouchDispatcher::move(CGPoint place) {
    const auto touch = touch_;
    touch->moveTo(place, TouchPhase::Moved, now());
    withdrawFromLostView();
    arena_.touchMoved(*touch);
    if (touch_ == touch && delivery_ == Delivery::Delivered)
        tell(&UIViewPeer::touchMoved, *touch);
}

void TouchDispatcher::end(CGPoint place) {
    const auto touch = touch_;
    touch->moveTo(place, TouchPhase::Ended, now());
    withdrawFromLostView();
    arena_.touchEnded(*touch);
    if (touch_ == touch)
        deliverBegin();
    if (touch_ != touch)
        return;
    touch_ = nullptr;
    if (delivery_ == Delivery::Delivered)
        tell(&UIViewPeer::touchEnded, *touch);
}

void TouchDispatcher::cancel() {
    const auto touch = std::exchange(touch_, {});
    if (!touch)
        return;
    touch->moveTo(touch->place(), TouchPhase::Cancelled, now());
    const auto delivered = std::exchange(delivery_, Delivery::Withdrawn) == Delivery::Delivered;
    arena_.touchCancelled(*touch);
    touch->setDelivered(false);
    if (delivered)
        tell(&UIViewPeer::touchCancelled, *touch);
}

void TouchDispatcher::deliverBegin() {
    if (delivery_ != Delivery::Held)
        return;
    const auto touch = touch_;
    delivery_ = Delivery::Delivered;
    touch->setDelivered(true);
    tell(&UIViewPeer::touchBegan, *touch);
}

void TouchDispatcher::withdraw() {
    if (!touch_)
        return;
    const auto touch = touch_;
    const auto delivered = std::exchange(delivery_, Delivery::Withdrawn) == Delivery::Delivered;
    touch->setDelivered(false);
    if (delivered)
        tell(&UIViewPeer::touchCancelled, *touch);
}

void TouchDispatcher::withdrawFromLostView() {
    const auto view = touch_->view();
    if (!view || view->peer().window() == nullptr)
        withdraw();
}

void TouchDispatcher::tell(void (UIViewPeer::*message)(DesktopTouch&, UIEvent&), DesktopTouch& touch) {
    if (const auto view = touch.view()) {
        const auto event = make<UIEvent>();
        (view->peer().*message)(touch, *event);
    }
}
