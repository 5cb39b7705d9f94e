#pragma once

#include "UIKit/UIControl.h"

/// A control that follows the finger that came down in it, wherever that goes: the base of those in which
/// one of many is chosen where the finger is lifted.
class FollowingControl : public UIControl {
public:
    // The finger, in this view's points.
    virtual void fingerMoved(CGPoint place) = 0;
    virtual void fingerLifted(CGPoint place) = 0;
    virtual void fingerGone() = 0;

    // UIControl:
    bool beginTrackingWithTouch(UITouch& touch, UIEvent* event) final;
    bool continueTrackingWithTouch(UITouch& touch, UIEvent* event) final;
    void endTrackingWithTouch(UITouch& touch, UIEvent* event) final;
    void cancelTrackingWithEvent(UIEvent* event) final;
};
