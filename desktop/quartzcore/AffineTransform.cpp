#include "AffineTransform.h"

#include "RectGeometry.h"

#include <algorithm>
#include <array>

CGRect AffineTransform::operator()(const CGRect& rect) const {
    const auto& map = *this;
    const std::array corners{map(rect.origin), map(CGPoint{CGRectGetMaxX(rect), rect.origin.y}),
                             map(CGPoint{rect.origin.x, CGRectGetMaxY(rect)}),
                             map(CGPoint{CGRectGetMaxX(rect), CGRectGetMaxY(rect)})};
    const auto [left, right] = std::ranges::minmax(corners, {}, &CGPoint::x);
    const auto [top, bottom] = std::ranges::minmax(corners, {}, &CGPoint::y);
    return CGRectMake(left.x, top.y, right.x - left.x, bottom.y - top.y);
}

AffineTransform AffineTransform::inverse() const {
    const auto determinant = a * d - b * c;
    return {d / determinant,
            -b / determinant,
            -c / determinant,
            a / determinant,
            (c * ty - d * tx) / determinant,
            (b * tx - a * ty) / determinant};
}
