#pragma once

#include "BarBackgroundView.h"
#include "NavigationBarContentView.h"
#include "Traits.h"

/// The bar above the pages of a navigation controller: a background, and the content for the page that is
/// shown. Takes touches in its row of buttons only. Made by the navigation controller, or by a page of its
/// own bar.
class UINavigationBar final : public UIView {
public:
    UINavigationBar();

    /// Points, without a large title, on that kind of device.
    [[nodiscard]] static double rowHeight(Idiom idiom);

    /// The height that the bar was placed with.
    [[nodiscard]] double rowHeight() const { return rowHeight_; }

    static constexpr double phoneRowHeight = 44;
    /// In a sheet, which has no status bar above.
    static constexpr double sheetRowHeight = 56;

    /// Shows that content and nothing else.
    void show(const Ref<NavigationBarContentView>& content);

    /// Shows two contents on the way from one to the other. \param progress 0..1
    void showBetween(const Ref<NavigationBarContentView>& from, const Ref<NavigationBarContentView>& to,
                     double progress);

    /// The content shown last; empty before there is one.
    [[nodiscard]] const Ref<NavigationBarContentView>& content() const { return content_; }

    [[nodiscard]] BarBackgroundView& background() const { return *background_; }

    /// The content's overlap has changed.
    void contentChanged();

    /// Where the bar goes in a page as wide as that: below `top`, up to which its background reaches as well.
    void place(double top, double width, double rowHeight);

private:
    /// Takes the height that the contents have, and the looks that follow from it.
    void update();

    Ref<BarBackgroundView> background_;
    Ref<NavigationBarContentView> content_;
    Ref<NavigationBarContentView> leaving_; ///< empty unless between two
    double progress_ = 1;
    double top_ = 0;
    double width_ = 0;
    double rowHeight_ = phoneRowHeight;
};
