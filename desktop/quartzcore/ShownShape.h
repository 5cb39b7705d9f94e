#pragma once

#include "CoreGraphics/CGGeometry.h"

/// What is seen of a layer on the screen, in its points: a rectangle, whose upper corners may be round.
struct ShownShape {
    CGRect frame;
    double cornerRadius = 0; ///< of corners that bend gradually

    friend bool operator==(const ShownShape&, const ShownShape&) = default;

    /// Whether nothing of that rectangle is outside, not even beyond the bend of a corner.
    [[nodiscard]] bool covers(const CGRect& rect) const;

    /// Whether the two have a part in common, corners aside.
    [[nodiscard]] bool reaches(const CGRect& rect) const;
};
