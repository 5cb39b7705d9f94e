#include "touches/DesktopTouch.h"

#include "views/UIViewPeer.h"

void DesktopTouch::moveTo(CGPoint place, TouchPhase phase, std::chrono::nanoseconds time) {
    place_ = place;
    phase_ = phase;
    time_ = time;
}

CGPoint DesktopTouch::locationInView(const UIView& view) const {
    return view.peer().convertFromScreen(place_);
}
