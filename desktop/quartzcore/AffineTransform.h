#pragma once

#include "CoreGraphics/CGGeometry.h"

/// A linear map of the plane with a shift: x' = a x + c y + tx, y' = b x + d y + ty.
struct AffineTransform {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double tx = 0;
    double ty = 0;

    [[nodiscard]] static constexpr AffineTransform scale(double factor) {
        return {factor, 0, 0, factor, 0, 0};
    }

    [[nodiscard]] static constexpr AffineTransform translation(double x, double y) {
        return {1, 0, 0, 1, x, y};
    }

    /// This map after `first`.
    [[nodiscard]] constexpr AffineTransform after(const AffineTransform& first) const {
        return {a * first.a + c * first.b,        b * first.a + d * first.b,
                a * first.c + c * first.d,        b * first.c + d * first.d,
                a * first.tx + c * first.ty + tx, b * first.tx + d * first.ty + ty};
    }

    [[nodiscard]] constexpr CGPoint operator()(CGPoint point) const {
        return {a * point.x + c * point.y + tx, b * point.x + d * point.y + ty};
    }

    /// The smallest upright rectangle around a mapped one.
    [[nodiscard]] CGRect operator()(const CGRect& rect) const;

    /// The map back. \pre the map flattens nothing
    [[nodiscard]] AffineTransform inverse() const;

    friend bool operator==(const AffineTransform&, const AffineTransform&) = default;
};
