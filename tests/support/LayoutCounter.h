#pragma once

#include "UIKit/UIView.h"

/// A view that counts how often it is laid out. For the tests of programs that hold the view engine.
class LayoutCounter final : public UIView {
public:
    // UIView:
    void layoutSubviews() override {
        UIView::layoutSubviews();
        ++layouts;
    }

    int layouts = 0;
};
