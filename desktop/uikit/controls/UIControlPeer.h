#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIControl.h"
#include "touches/DesktopTouch.h"
#include "views/UIViewPeer.h"

#include <functional>
#include <string>
#include <vector>

/// The desktop's half of a control: follows one finger, and sends the messages. Made with the control.
///
/// The order of things: `isTracking` is true before `beginTrackingWithTouch` is called, and false before
/// `endTrackingWithTouch` and `cancelTrackingWithEvent` are; each of these, and `continueTrackingWithTouch`,
/// is called before the messages of its event are sent. What answers false is not told of the rest of the
/// touch.
class UIControlPeer : public UIViewPeer {
public:
    using Object = UIControl;

    UIControlPeer();

    [[nodiscard]] UIControl& control() const;

    [[nodiscard]] bool isEnabled() const { return enabled_; }

    /// A control that is switched off while a finger handles it loses the touch.
    void setEnabled(bool enabled);

    [[nodiscard]] bool isHighlighted() const { return highlighted_; }

    void setHighlighted(bool highlighted);

    [[nodiscard]] bool isTracking() const { return static_cast<bool>(tracked_); }

    [[nodiscard]] UIControlContentHorizontalAlignment horizontalAlignment() const {
        return horizontalAlignment_;
    }

    void setHorizontalAlignment(UIControlContentHorizontalAlignment alignment);

    [[nodiscard]] UIControlContentVerticalAlignment verticalAlignment() const { return verticalAlignment_; }

    void setVerticalAlignment(UIControlContentVerticalAlignment alignment);

    void addTarget(NSObject& target, std::string selector, UIControlEvents events);
    /// The engine's own way to hear of an event.
    void addHandler(UIControlEvents events, std::function<void()> handler);
    void sendActions(UIControlEvents events, UIEvent* event);

    /// The control was switched on or off, or is or is no more highlighted.
    virtual void stateDidChange() {}

    // UIViewPeer:
    void touchBegan(DesktopTouch& touch, UIEvent& event) override;
    void touchMoved(DesktopTouch& touch, UIEvent& event) override;
    void touchEnded(DesktopTouch& touch, UIEvent& event) override;
    void touchCancelled(DesktopTouch& touch, UIEvent& event) override;
    void didMoveToWindow() override;

protected:
    /// Whether a finger that the control tracks is near enough to count as on it.
    [[nodiscard]] bool isInside(const DesktopTouch& touch) const;

private:
    struct TargetAction {
        Weak<NSObject> target;
        std::string selector;
        UIControlEvents events;
    };

    struct Handler {
        UIControlEvents events;
        std::function<void()> call;
    };

    void stopTracking();
    void cancelTracking(UIEvent* event);

    std::vector<TargetAction> targets_;
    std::vector<Handler> handlers_;
    Ref<DesktopTouch> tracked_;
    UIControlContentHorizontalAlignment horizontalAlignment_ = UIControlContentHorizontalAlignment::Center;
    UIControlContentVerticalAlignment verticalAlignment_ = UIControlContentVerticalAlignment::Center;
    bool enabled_ = true;
    bool highlighted_ = false;
    bool touchInside_ = false;
};
