#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "Traits.h"

#include <cstddef>
#include <optional>
#include <vector>

/// From the bar's edge to its titles and outermost buttons, in points.
[[nodiscard]] double barMargin(const Traits& traits);

/// What is to find a place in the row of a navigation bar. Lengths are in points.
struct NavigationBarParts {
    CGSize bar;
    double margin = 16; ///< as `barMargin` says
    bool hasBackButton = false;
    std::vector<double> backTitles; ///< the widths of its possible titles, the preferred first
    std::vector<double> left;       ///< the widths of the buttons' contents, the outermost first
    std::vector<double> right;      ///< likewise
    CGSize title;                   ///< of the title or of the view in its place
    double displayScale = 1;        ///< pixels per point: the title stands on a whole one
};

/// The places of those parts, in points of the row.
struct NavigationBarPlaces {
    /// Above a button's content there is room for a finger; contents are nearer to each other than this only
    /// where they are wider.
    static constexpr double leastButtonWidth = 44;

    CGRect back;                          ///< of the back button; empty without one
    std::optional<std::size_t> backTitle; ///< which title it has room for; nothing for its chevron alone
    std::vector<CGRect> left;             ///< as high as the bar, and wide enough for a finger
    std::vector<CGRect> right;
    CGRect title; ///< in the middle of the bar where that is free; narrower than asked for when it must be
};

/// The title gives way to the buttons beside it, to the side at first; then the back button's title does to
/// the bar's; then the title is made narrower.
[[nodiscard]] NavigationBarPlaces placesFor(const NavigationBarParts& parts);
