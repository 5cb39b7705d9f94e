#pragma once

#include "UIKit/UIScrollView.h"
#include "controls/FollowingControl.h"

#include <optional>

/// A panel with choices in it, which scroll where there is no room for all. A finger chooses from those that
/// are seen, wherever in the panel it came down. The base of the panels of alerts and menus.
class ChoicePanel : public FollowingControl {
public:
    // FollowingControl:
    void fingerMoved(CGPoint place) final;
    void fingerLifted(CGPoint place) final;
    void fingerGone() final;

protected:
    /// \param choices which are told of the finger
    explicit ChoicePanel(const Ref<FollowingControl>& choices);

    /// What the choices scroll in. Whoever derives puts it among the views of the panel.
    [[nodiscard]] const Ref<UIScrollView>& scroll() const { return scroll_; }

    /// Gives the choices their place, in what `scroll` is in. \param fullHeight of all of them
    void placeChoices(const CGRect& frame, double fullHeight);

private:
    /// In the choices' points; nothing where none of them is seen.
    [[nodiscard]] std::optional<CGPoint> placeAmongChoices(CGPoint place) const;

    Ref<FollowingControl> choices_;
    Ref<UIScrollView> scroll_;
};
