#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "UIKit/UIView.h"

#include <string>
#include <vector>

class UIScrollView;

/// Finds what a script means by a label: the views within one view that show that text or have it as their
/// accessibility label. Of views within each other the outermost counts; in a
/// row of a table, a control that has the label counts in place of the text beside it. Made for one search.
class ElementSearch {
public:
    ElementSearch(UIView& root, std::string label) : root_(root), label_(std::move(label)) {}

    /// The first one that is there now, or else one further up or down in what scrolls; it is scrolled into
    /// view. Empty when there is none.
    [[nodiscard]] Ref<UIView> first();

    /// One of all that there are, those of what scrolls from its top on and then the others; it is scrolled
    /// into view. \param number from 1 on. Empty when there are not so many.
    [[nodiscard]] Ref<UIView> numbered(int number);

private:
    using Views = std::vector<Ref<UIView>>;

    [[nodiscard]] bool matches(const UIView& view) const;
    void collect(UIView& view, Views& found) const;
    [[nodiscard]] Views shownIn(UIView& view) const;
    /// Where they are in the contents, from the top on.
    [[nodiscard]] std::vector<CGPoint> placesIn(UIScrollView& scroll) const;
    [[nodiscard]] Ref<UIView> viewAt(CGPoint place, UIScrollView& scroll) const;
    [[nodiscard]] Ref<UIView> scrolledTo(CGPoint place, UIScrollView& scroll) const;

    UIView& root_;
    std::string label_;
};
