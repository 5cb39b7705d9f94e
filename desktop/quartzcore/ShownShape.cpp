#include "ShownShape.h"

#include "ContinuousCorners.h"
#include "RectGeometry.h"

namespace {

QRectF asQRect(const CGRect& rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

} // namespace

bool ShownShape::covers(const CGRect& rect) const {
    const RoundCorners upper{.bottomLeft = false, .bottomRight = false};
    return asQRect(frame).contains(asQRect(rect)) &&
           (cornerRadius <= 0 ||
            continuousCornersPath(asQRect(frame), cornerRadius, upper).contains(asQRect(rect)));
}

bool ShownShape::reaches(const CGRect& rect) const {
    return asQRect(frame).intersects(asQRect(rect));
}
