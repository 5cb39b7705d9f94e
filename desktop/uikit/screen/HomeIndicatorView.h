#pragma once

#include "UIKit/UIView.h"

/// The bar at the screen's lower edge by which one goes home. Made by the system's bars.
class HomeIndicatorView final : public UIView {
public:
    HomeIndicatorView();

    /// Where it is on a screen of that size, in points.
    [[nodiscard]] static CGRect frameIn(CGSize screen, bool isPhone);
};
