#pragma once

#include "Traits.h"
#include "UIKit/UINavigationBar.h"
#include "navigation/BarBackgroundView.h"
#include "navigation/NavigationBarContentView.h"
#include "views/UIViewPeer.h"

#include <optional>
#include <vector>

/// The desktop's half of a navigation bar: a background, and the content for the page that is shown. Takes
/// touches in its row of buttons only. A navigation controller places its bar and says what it shows; a bar
/// that was given items stands alone, and fills its frame with the last one's content. Made with the bar.
class UINavigationBarPeer final : public UIViewPeer {
public:
    using Object = UINavigationBar;

    UINavigationBarPeer();

    /// Points, without a large title, on that kind of device.
    [[nodiscard]] static double rowHeight(Idiom idiom);

    /// The height that the bar was placed with.
    [[nodiscard]] double rowHeight() const { return rowHeight_; }

    static constexpr double phoneRowHeight = 44;
    /// In a sheet, which has no status bar above.
    static constexpr double sheetRowHeight = 56;

    /// Has the bar stand alone.
    void setItems(const std::vector<Ref<UINavigationItem>>& items);

    /// Shows that content and nothing else.
    void show(const Ref<NavigationBarContentView>& content);

    /// Two contents on the way from one to the other.
    struct Between {
        Ref<NavigationBarContentView> from;
        Ref<NavigationBarContentView> to;
        double progress = 1; ///< 0..1
        bool isPush = true;  ///< whether the page of `to` slides over the other, which is uncovered if not
    };

    void showBetween(const Between& between);

    /// The content shown last; empty before there is one.
    [[nodiscard]] const Ref<NavigationBarContentView>& content() const { return content_; }

    [[nodiscard]] BarBackgroundView& background() const { return *background_; }

    /// Between two contents, above the page that leaves.
    [[nodiscard]] BarBackgroundView& leavingBackground() const { return *leavingBackground_; }

    /// The content's overlap has changed.
    void contentChanged();

    /// Where the bar goes in a page as wide as that: below `top`, up to which its background reaches as well.
    void place(double top, double width, double rowHeight);

    // UIViewPeer:
    void layoutSubviews() override;
    [[nodiscard]] bool pointInside(CGPoint point) const override;
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const override;
    [[nodiscard]] std::optional<double> intrinsicHeight() const override;

private:
    friend class UINavigationBar;

    void viewMade();
    /// Takes the height that the contents have, and the looks that follow from it.
    void update();
    /// Each as wide as what is seen of its page.
    void placeBackgrounds(double height);

    Ref<BarBackgroundView> background_;
    Ref<BarBackgroundView> leavingBackground_;
    Ref<NavigationBarContentView> content_;
    Ref<NavigationBarContentView> leaving_; ///< empty unless between two
    double progress_ = 1;
    bool isPush_ = true;
    bool standsAlone_ = false;
    double top_ = 0;
    double width_ = 0;
    double rowHeight_ = phoneRowHeight;
};
