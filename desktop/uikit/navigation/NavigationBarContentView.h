#pragma once

#include "controllers/DesktopNavigationItem.h"
#include "navigation/BackButtonView.h"
#include "navigation/BarButtonView.h"
#include "navigation/LargeTitleView.h"
#include "navigation/NavigationBarLayout.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What a navigation bar shows for one page: the back button, the buttons, the title and, below these, the
/// large title. Follows the page's navigation item. Made by whoever shows a page in a bar.
class NavigationBarContentView final : public UIView {
public:
    struct Options {
        std::optional<std::string> backTitle; ///< the title of the page before; nothing at the root
        std::function<void()> goBack;
        bool hasLargeTitle = false;
    };

    NavigationBarContentView(const Ref<DesktopNavigationItem>& item, Options options);

    [[nodiscard]] const Ref<DesktopNavigationItem>& item() const { return item_; }

    /// Of the buttons and the title, in points.
    void setRowHeight(double points);

    [[nodiscard]] bool hasLargeTitle() const { return options_.hasLargeTitle; }

    /// Points, with the large title as far as it is not scrolled away.
    [[nodiscard]] double height() const;

    /// How far the page's content has been scrolled beneath the bar, the large title's room included; less
    /// than nothing when it is pulled down.
    void setOverlap(double points);

    /// How much the bar's background is to be seen: 0 while no content is beneath the bar, 1 when it is.
    [[nodiscard]] double backgroundAlpha() const;

    /// Between pages. \param phase 0 in place; 1 before the page has come, -1 once another page covers it
    void setPhase(double phase);

    /// Whether the back button's chevron stays while the rest fades.
    void setKeepsChevron(bool keeps) { keepsChevron_ = keeps; }

    /// Null at the root.
    [[nodiscard]] BackButtonView* backButton() const { return back_.get(); }

    [[nodiscard]] const std::vector<Ref<BarButtonView>>& leftButtons() const { return left_; }

    [[nodiscard]] const std::vector<Ref<BarButtonView>>& rightButtons() const { return right_; }

    /// The title, or the view in its place.
    [[nodiscard]] UIView& titleView() const { return *title_; }

    // UIView:
    void layoutSubviews() override;

private:
    void rebuild();
    void buildTitle();
    [[nodiscard]] std::vector<Ref<BarButtonView>> makeButtons(const std::vector<Ref<UIBarButtonItem>>& items);
    [[nodiscard]] NavigationBarParts parts() const;
    [[nodiscard]] CGSize titleSize() const;
    void updateTitleAlpha();

    Ref<DesktopNavigationItem> item_;
    Options options_;
    Ref<UIView> titleHolder_; ///< fades and slides, so that a title view of the page's own is left alone
    Ref<UIView> title_;
    Ref<BackButtonView> back_;
    std::vector<Ref<BarButtonView>> left_;
    std::vector<Ref<BarButtonView>> right_;
    Ref<LargeTitleView> largeTitle_; ///< empty without one
    double rowHeight_ = 44;
    double overlap_ = 0;
    double phase_ = 0;
    bool keepsChevron_ = false;
    bool smallTitleIsShown_;
};
