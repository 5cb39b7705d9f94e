#pragma once

#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "UIKit/UIView.h"
#include "menus/DesktopAction.h"

/// One action of an open menu. Made by the menu's view, which handles the fingers.
class MenuRowView final : public UIView {
public:
    static constexpr double height = 44; ///< points

    explicit MenuRowView(const Ref<DesktopAction>& action);

    [[nodiscard]] const Ref<DesktopAction>& action() const { return action_; }

    void setHighlighted(bool highlighted);

    /// The line at the upper edge, towards another row.
    void setHasSeparator(bool has);

    // UIView:
    void layoutSubviews() override;

private:
    [[nodiscard]] Ref<UIColor> color() const;

    Ref<DesktopAction> action_;
    Ref<UIView> highlight_;
    Ref<UIView> separator_;
    Ref<UILabel> label_;
    Ref<UIImageView> image_;
};
