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
