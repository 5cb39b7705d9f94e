#include "controls/FollowingControl.h"

bool FollowingControl::beginTrackingWithTouch(UITouch& touch, UIEvent* event) {
    fingerMoved(touch.locationInView(*this));
    return UIControl::beginTrackingWithTouch(touch, event);
}

bool FollowingControl::continueTrackingWithTouch(UITouch& touch, UIEvent* event) {
    fingerMoved(touch.locationInView(*this));
    return UIControl::continueTrackingWithTouch(touch, event);
}

void FollowingControl::endTrackingWithTouch(UITouch& touch, UIEvent* event) {
    UIControl::endTrackingWithTouch(touch, event);
    fingerLifted(touch.locationInView(*this));
}

void FollowingControl::cancelTrackingWithEvent(UIEvent* event) {
    UIControl::cancelTrackingWithEvent(event);
    fingerGone();
}
