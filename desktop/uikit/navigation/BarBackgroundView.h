#pragma once

#include "UIKit/UIView.h"

/// The blurred background of a bar with the hairline at its lower edge. Made by the bar; its alpha says how
/// much of it is to be seen.
class BarBackgroundView final : public UIView {
public:
    BarBackgroundView();

    // UIView:
    void layoutSubviews() override;

private:
    Ref<UIView> blur_;
    Ref<UIView> hairline_;
};
