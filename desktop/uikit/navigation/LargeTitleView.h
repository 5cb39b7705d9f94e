#pragma once

#include "UIKit/UILabel.h"
#include "UIKit/UIView.h"

#include <string>

/// The room below a navigation bar's row that shows the large title, and cuts off what of it has been
/// scrolled under the row. Made by the bar's content.
class LargeTitleView final : public UIView {
public:
    static constexpr double height = 52; ///< points, when nothing is scrolled
    /// From this overlap on the title is under the row.
    static constexpr double hiddenFrom = 44;

    LargeTitleView();

    void setTitle(const std::string& title);
    /// As of `NavigationBarContentView`.
    void setOverlap(double points);

    // UIView:
    void layoutSubviews() override;

private:
    Ref<UILabel> label_;
    double overlap_ = 0;
};
