#pragma once

#include "UIKit/UIView.h"

/// Carries the view of one page of a navigation controller from side to side, with what makes the upper of
/// two pages look nearer. Made by the navigation controller.
class NavigationPageView final : public UIView {
public:
    static constexpr double parallax = 0.3; ///< of the width, that a page moves beneath another one

    explicit NavigationPageView(const Ref<UIView>& page);

    [[nodiscard]] UIView& page() const { return *page_; }

    /// The page alone.
    void placeAlone();
    /// The page above another one. \param away 0 in place, 1 beyond the trailing edge
    void placeAbove(double away);
    /// The page beneath another one. \param covered 0 in place, 1 all covered
    void placeBeneath(double covered);

    /// Lets the page's view go, unless somebody else has taken it.
    void releasePage();

    // UIView:
    void layoutSubviews() override;

private:
    void place(double shift, double shadow, double dim);

    Ref<UIView> page_;
    Ref<UIView> dimming_;
    Ref<UIView> shadow_;
};
