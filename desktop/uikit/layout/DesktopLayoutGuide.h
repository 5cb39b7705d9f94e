#pragma once

#include "UIKit/UILayoutGuide.h"
#include "layout/LayoutAnchor.h"

/// One of the rectangles that every view has for constraints.
class DesktopLayoutGuide final : public UILayoutGuide {
public:
    DesktopLayoutGuide(UIView& view, LayoutGuide guide) : view_(&view), guide_(guide) {}

    // UILayoutGuide:
    [[nodiscard]] Ref<NSLayoutYAxisAnchor> topAnchor() const override;
    [[nodiscard]] Ref<NSLayoutYAxisAnchor> centerYAnchor() const override;

private:
    Weak<UIView> view_;
    LayoutGuide guide_;
};
