#include "ContinuousCorners.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr double extent = 1.52866; ///< of a whole continuous corner along a side, in radii

/// The ten points of three cubic curves round a corner, in radii: how far they are from the corner along the
/// side that leads to it, and along the side that leads away.
using CornerPoints = std::array<QPointF, 10>;

constexpr CornerPoints continuousCorner{QPointF(1.52866, 0),       QPointF(1.08849, 0),
                                        QPointF(0.86841, 0),       QPointF(0.63149, 0.07491),
                                        QPointF(0.37282, 0.16906), QPointF(0.16906, 0.37282),
                                        QPointF(0.07491, 0.63149), QPointF(0, 0.86841),
                                        QPointF(0, 1.08849),       QPointF(0, 1.52866)};

/// Where the continuous corner's curves meet, as the direction they have there.
constexpr double meetingAngle = 0.327;

/// Writes the cubic curve of a quarter circle between two angles, from its first control point to its end.
void addArc(CornerPoints& points, std::size_t first, double from, double to) {
    const double handle = 4.0 / 3.0 * std::tan((to - from) / 4);
    const auto at = [](double angle) { return QPointF(1 - std::sin(angle), 1 - std::cos(angle)); };
    const auto along = [](double angle) { return QPointF(-std::cos(angle), std::sin(angle)); };
    points[first] = at(from) + along(from) * handle;
    points[first + 1] = at(to) - along(to) * handle;
    points[first + 2] = at(to);
}

/// A quarter circle in three curves as well.
CornerPoints circularCorner() {
    constexpr double quarter = std::numbers::pi / 2;
    CornerPoints points{QPointF(1, 0)};
    addArc(points, 1, 0, meetingAngle);
    addArc(points, 4, meetingAngle, quarter - meetingAngle);
    addArc(points, 7, quarter - meetingAngle, quarter);
    return points;
}

/// \param room along the shorter side, in radii, from 1
CornerPoints cornerWithin(double room) {
    const double continuity = std::clamp((room - 1) / (extent - 1), 0.0, 1.0);
    auto points = circularCorner();
    for (std::size_t index = 0; index < points.size(); ++index)
        points[index] += (continuousCorner[index] - points[index]) * continuity;
    return points;
}

/// The rectangle's corners in clockwise order, and how a path comes to and leaves each.
struct Corner {
    bool isRound = false;
    QPointF position;
    QPointF towardsPrevious; ///< of length 1
    QPointF towardsNext;
};

std::array<Corner, 4> cornersOf(const QRectF& rectangle, const RoundCorners& round) {
    const QPointF right(1, 0);
    const QPointF down(0, 1);
    return {Corner{round.topLeft, rectangle.topLeft(), down, right},
            Corner{round.topRight, rectangle.topRight(), -right, down},
            Corner{round.bottomRight, rectangle.bottomRight(), -down, -right},
            Corner{round.bottomLeft, rectangle.bottomLeft(), right, -down}};
}

/// How much of the sides each round corner may take, the same for all of them.
double roomFor(const RoundCorners& round, const QSizeF& size) {
    const auto share = [](double side, bool one, bool other) { return one && other ? side / 2 : side; };
    return std::min({share(size.width(), round.topLeft, round.topRight),
                     share(size.width(), round.bottomLeft, round.bottomRight),
                     share(size.height(), round.topLeft, round.bottomLeft),
                     share(size.height(), round.topRight, round.bottomRight)});
}

void addCorner(QPainterPath& path, const Corner& corner, const CornerPoints& points, double radius) {
    const auto at = [&](std::size_t index) {
        const auto& point = points[index];
        return corner.position +
               (corner.towardsPrevious * point.x() + corner.towardsNext * point.y()) * radius;
    };
    path.lineTo(at(0));
    for (std::size_t first = 1; first < points.size(); first += 3)
        path.cubicTo(at(first), at(first + 1), at(first + 2));
}

} // namespace

QPainterPath continuousCornersPath(const QRectF& rectangle, double radius, const RoundCorners& corners) {
    const double room = roomFor(corners, rectangle.size());
    const double fitting = std::min(radius, room);
    QPainterPath path;
    if (!(fitting > 0)) {
        path.addRect(rectangle);
        return path;
    }
    const auto points = cornerWithin(room / fitting);
    const double start = corners.topLeft ? points.back().y() * fitting : 0;
    path.moveTo(rectangle.topLeft() + QPointF(start, 0));
    const auto all = cornersOf(rectangle, corners);
    for (const auto number : {1U, 2U, 3U, 0U}) {
        if (all[number].isRound)
            addCorner(path, all[number], points, fitting);
        else
            path.lineTo(all[number].position);
    }
    path.closeSubpath();
    return path;
}
