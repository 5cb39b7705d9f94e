#pragma once

#include <QPainterPath>
#include <QRectF>

/// Which corners of a rectangle are round.
struct RoundCorners {
    bool topLeft = true;
    bool topRight = true;
    bool bottomLeft = true;
    bool bottomRight = true;
};

/// The outline, clockwise and closed, of a rectangle whose corners bend gradually, as the platform draws
/// them: each begins 1.53 radii from the corner. Where a side has less room, the corner comes nearer to a
/// quarter of a circle, and is one when the side has room for no more; a radius larger than that is made
/// smaller.
[[nodiscard]] QPainterPath continuousCornersPath(const QRectF& rectangle, double radius,
                                                 const RoundCorners& corners = {});
