#pragma once

#include "UIKit/UIView.h"
#include "layout/UIStackViewPeer.h"

/// Lays views in a row or a column. What it shows is its arranged subviews; they are placed by constraints.
class UIStackView final : public UIView {
public:
    UIStackView() : UIView(std::make_unique<UIStackViewPeer>()) {}
};
