#pragma once

/// Lengths and places are in points; x grows to the right, y downward.
struct CGPoint {
    double x = 0;
    double y = 0;

    friend bool operator==(const CGPoint&, const CGPoint&) = default;
};

struct CGSize {
    double width = 0;
    double height = 0;

    friend bool operator==(const CGSize&, const CGSize&) = default;
};

struct CGRect {
    CGPoint origin;
    CGSize size;

    friend bool operator==(const CGRect&, const CGRect&) = default;
};

/// Distances inward from the edges of a rectangle.
struct UIEdgeInsets {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;

    friend bool operator==(const UIEdgeInsets&, const UIEdgeInsets&) = default;
};

constexpr CGRect CGRectMake(double x, double y, double width, double height) {
    return {{x, y}, {width, height}};
}

/// Whether a rectangle has no area.
constexpr bool CGRectIsEmpty(const CGRect& rect) {
    return rect.size.width <= 0 || rect.size.height <= 0;
}

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
