#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "touches/DesktopTouch.h"
#include "touches/GestureArena.h"
#include "touches/TouchPhase.h"

class UIEvent;
class UIViewPeer;

/// Brings one finger's touches to the view under it and to the gesture recognisers of that view and those
/// around it. One at a time, on a screen; made by the host program, the script's driver or a test.
class TouchDispatcher {
public:
    TouchDispatcher();
    /// Cancels the touch that is under way.
    ~TouchDispatcher();
    TouchDispatcher(const TouchDispatcher&) = delete;
    TouchDispatcher& operator=(const TouchDispatcher&) = delete;

    /// The finger comes down, moves, is lifted or is taken away by the system, at the device's present time.
    /// Coming down while it is down cancels the touch there was; anything else of a finger that is not down
    /// is ignored. \param place in points of the screen
    void touch(TouchPhase phase, CGPoint place);

    /// Whether the finger is down.
    [[nodiscard]] bool isTouching() const { return static_cast<bool>(touch_); }

    /// Takes the touch away from a view, those within it and their recognisers, as when it is removed,
    /// hidden or covered by something modal. The recognisers of the views around it go on.
    static void cancelTouchesIn(UIView& view);

private:
    /// Where the touch stands with the views.
    enum class Delivery {
        Held,      ///< they are to hear of it, unless a recogniser takes it first
        Delivered, ///< they have
        Withdrawn  ///< they hear no more of it
    };

    void begin(CGPoint place);
    void move(CGPoint place);
    void end(CGPoint place);
    void cancel();
    void deliverBegin();
    void withdraw();
    void withdrawFromLostView();
    void tell(void (UIViewPeer::*message)(DesktopTouch&, UIEvent&), DesktopTouch& touch);

    Ref<DesktopTouch> touch_;
    Delivery delivery_ = Delivery::Withdrawn;
    GestureArena arena_;
};
