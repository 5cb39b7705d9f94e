#pragma once

#include "UIKit/UILabel.h"
#include "UIKit/UIView.h"
#include "alerts/DesktopAlertAction.h"

/// One button of an alert, with the lines towards what is above it and beside it. Made by the alert's view,
/// which handles the fingers.
class AlertButtonView final : public UIView {
public:
    explicit AlertButtonView(const Ref<DesktopAlertAction>& action);

    [[nodiscard]] const Ref<DesktopAlertAction>& action() const { return action_; }

    /// Of the title in one line; points.
    [[nodiscard]] double titleWidth() const;

    void setHighlighted(bool highlighted);

    void setHasLines(bool above, bool beside);

    // UIView:
    void layoutSubviews() override;

private:
    class Peer;

    void showTint();

    Ref<DesktopAlertAction> action_;
    Ref<UIView> highlight_;
    Ref<UIView> lineAbove_;
    Ref<UIView> lineBeside_;
    Ref<UILabel> label_;
};
