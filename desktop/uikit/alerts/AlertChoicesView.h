#pragma once

#include "alerts/AlertButtonView.h"
#include "alerts/AlertLayout.h"
#include "controls/FollowingControl.h"

#include <functional>
#include <vector>

/// The buttons of an alert in their places, and the finger that moves over them. Made by the alert's view,
/// which lets it scroll, and which tells it of a finger that came down elsewhere.
class AlertChoicesView final : public FollowingControl {
public:
    using Chosen = std::function<void(const Ref<DesktopAlertAction>& action)>;

    /// \param chosen called when a finger was lifted over a button
    explicit AlertChoicesView(Chosen chosen);

    /// In the order in which they were added.
    void setActions(const std::vector<Ref<DesktopAlertAction>>& actions);

    /// Whether a line parts the first buttons from texts above them.
    void setBelowTexts(bool below);

    /// As they are shown.
    [[nodiscard]] const std::vector<Ref<AlertButtonView>>& buttons() const { return buttons_; }

    /// The height of all of them.
    [[nodiscard]] double fullHeight() const { return buttonLayout().height(); }

    // FollowingControl:
    void fingerMoved(CGPoint place) override;
    void fingerLifted(CGPoint place) override;
    void fingerGone() override;

    // UIView:
    void layoutSubviews() override;

private:
    [[nodiscard]] AlertLayout buttonLayout() const;
    void sortButtons();
    /// Null when there is none.
    [[nodiscard]] AlertButtonView* buttonAt(CGPoint place) const;
    void highlight(const AlertButtonView* touched);

    Chosen chosen_;
    std::vector<Ref<AlertButtonView>> added_; ///< in that order
    std::vector<Ref<AlertButtonView>> buttons_;
    bool isBelowTexts_ = false;
};
