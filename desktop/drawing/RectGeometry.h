#pragma once

#include "CoreGraphics/CGGeometry.h"

/// What the desktop reckons with rectangles, besides what the contract itself has. All in points.
constexpr double CGRectGetMidX(const CGRect& rect) {
    return rect.origin.x + rect.size.width / 2;
}

constexpr double CGRectGetMidY(const CGRect& rect) {
    return rect.origin.y + rect.size.height / 2;
}

constexpr double CGRectGetMaxX(const CGRect& rect) {
    return rect.origin.x + rect.size.width;
}

constexpr double CGRectGetMaxY(const CGRect& rect) {
    return rect.origin.y + rect.size.height;
}

/// The left and top edges are inside, the right and bottom ones are not.
constexpr bool CGRectContainsPoint(const CGRect& rect, CGPoint point) {
    return point.x >= rect.origin.x && point.x < CGRectGetMaxX(rect) && point.y >= rect.origin.y &&
           point.y < CGRectGetMaxY(rect);
}

/// The rectangle within the insets; negative insets grow it.
constexpr CGRect UIEdgeInsetsInsetRect(const CGRect& rect, const UIEdgeInsets& insets) {
    return {{rect.origin.x + insets.left, rect.origin.y + insets.top},
            {rect.size.width - insets.left - insets.right, rect.size.height - insets.top - insets.bottom}};
}
