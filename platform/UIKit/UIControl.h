#pragma once

#include "UIKit/UIEvent.h"
#include "UIKit/UITouch.h"
#include "UIKit/UIView.h"

#include <string_view>

/// What happens to a control; a set of flags with the platform's numbers.
enum class UIControlEvents : unsigned {
    TouchDown = 1U << 0U,
    TouchDragInside = 1U << 2U,
    TouchDragOutside = 1U << 3U,
    TouchDragEnter = 1U << 4U,
    TouchDragExit = 1U << 5U,
    TouchUpInside = 1U << 6U,
    TouchUpOutside = 1U << 7U,
    TouchCancel = 1U << 8U,
    ValueChanged = 1U << 12U,
};

constexpr UIControlEvents operator|(UIControlEvents left, UIControlEvents right) {
    return static_cast<UIControlEvents>(static_cast<unsigned>(left) | static_cast<unsigned>(right));
}

/// Where a control's content stands from left to right. The numbers are the platform's.
enum class UIControlContentHorizontalAlignment : int { Center = 0, Fill = 3 };

/// And from top to bottom.
enum class UIControlContentVerticalAlignment : int { Center = 0, Fill = 3 };

/// A view that is handled with a finger and sends messages to its targets when something happens to it.
class UIControl : public UIView {
public:
    UIControl();

    /// Sends `selector` to `target`, with as many of the control and the event as it takes, whenever one of
    /// `events` happens. The target is not kept alive, and gets nothing once it is gone.
    void addTarget(NSObject& target, std::string_view selector, UIControlEvents events);

    /// Sends the messages of those events.
    void sendActionsForControlEvents(UIControlEvents events);

    /// In the middle at first.
    void setContentHorizontalAlignment(UIControlContentHorizontalAlignment alignment);
    void setContentVerticalAlignment(UIControlContentVerticalAlignment alignment);

    /// Whether a finger is handling the control.
    [[nodiscard]] bool isTracking() const;

    /// A finger came down in the control. An override calls its base.
    /// \returns false to hear no more of this touch
    virtual bool beginTrackingWithTouch(UITouch& touch, UIEvent* event);
    /// The finger moved. \returns false to hear no more of this touch
    virtual bool continueTrackingWithTouch(UITouch& touch, UIEvent* event);
    /// The finger was lifted.
    virtual void endTrackingWithTouch(UITouch& touch, UIEvent* event);
    /// The touch was taken away: the control goes back to what it was.
    virtual void cancelTrackingWithEvent(UIEvent* event);

protected:
    explicit UIControl(std::unique_ptr<UIViewPeer> peer);
};
