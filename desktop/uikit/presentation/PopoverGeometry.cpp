#include "presentation/PopoverGeometry.h"

#include "RectGeometry.h"

#include <algorithm>
#include <array>

namespace {

using Side = PopoverGeometry::Side;

bool isUpright(Side side) {
    return side == Side::Below || side == Side::Above;
}

CGRect withoutEdges(const CGRect& room) {
    constexpr auto edge = PopoverGeometry::edgeDistance;
    return UIEdgeInsetsInsetRect(room, {.top = edge, .left = edge, .bottom = edge, .right = edge});
}

/// How much room a panel has on that side, towards the edge.
double depthOn(Side side, const CGRect& room, const CGRect& source) {
    const auto free = [&] {
        switch (side) {
        case Side::Below:
            return CGRectGetMaxY(room) - CGRectGetMaxY(source);
        case Side::Above:
            return source.origin.y - room.origin.y;
        case Side::Right:
            return CGRectGetMaxX(room) - CGRectGetMaxX(source);
        default:
            return source.origin.x - room.origin.x;
        }
    }();
    return std::max(0.0, free - PopoverGeometry::arrowHeight);
}

bool hasRoom(Side side, CGSize size, const CGRect& room, const CGRect& source) {
    const auto depth = depthOn(side, room, source);
    return isUpright(side) ? size.height <= depth && size.width <= room.size.width
                           : size.width <= depth && size.height <= room.size.height;
}

Side sideFor(CGSize size, const CGRect& room, const CGRect& source) {
    constexpr std::array sides{Side::Below, Side::Above, Side::Right, Side::Left};
    const auto* const found =
        std::ranges::find_if(sides, [&](Side side) { return hasRoom(side, size, room, source); });
    if (found != sides.end())
        return *found;
    return depthOn(Side::Below, room, source) >= depthOn(Side::Above, room, source) ? Side::Below
                                                                                    : Side::Above;
}

/// Where a stretch begins whose middle is to be there.
double startAround(double middle, double length, double least, double greatest) {
    return std::clamp(middle - length / 2, least, std::max(least, greatest - length));
}

CGRect panelFrame(Side side, CGSize wanted, const CGRect& room, const CGRect& source) {
    constexpr auto gap = PopoverGeometry::arrowHeight;
    const auto depth = depthOn(side, room, source);
    const CGSize size{std::min(wanted.width, isUpright(side) ? room.size.width : depth),
                      std::min(wanted.height, isUpright(side) ? depth : room.size.height)};
    const auto x = startAround(CGRectGetMidX(source), size.width, room.origin.x, CGRectGetMaxX(room));
    const auto y = startAround(CGRectGetMidY(source), size.height, room.origin.y, CGRectGetMaxY(room));
    switch (side) {
    case Side::Below:
        return CGRectMake(x, CGRectGetMaxY(source) + gap, size.width, size.height);
    case Side::Above:
        return CGRectMake(x, source.origin.y - gap - size.height, size.width, size.height);
    case Side::Right:
        return CGRectMake(CGRectGetMaxX(source) + gap, y, size.width, size.height);
    default:
        return CGRectMake(source.origin.x - gap - size.width, y, size.width, size.height);
    }
}

CGRect arrowFrame(Side side, const CGRect& panel, const CGRect& source) {
    constexpr auto base = PopoverGeometry::arrowBase;
    constexpr auto height = PopoverGeometry::arrowHeight;
    constexpr auto corner = PopoverGeometry::cornerRadius;
    constexpr CGSize upright{.width = base, .height = height};
    constexpr CGSize lying{.width = height, .height = base};
    const auto x =
        startAround(CGRectGetMidX(source), base, panel.origin.x + corner, CGRectGetMaxX(panel) - corner);
    const auto y =
        startAround(CGRectGetMidY(source), base, panel.origin.y + corner, CGRectGetMaxY(panel) - corner);
    switch (side) {
    case Side::Below:
        return {{x, panel.origin.y - height}, upright};
    case Side::Above:
        return {{x, CGRectGetMaxY(panel)}, upright};
    case Side::Right:
        return {{panel.origin.x - height, y}, lying};
    default:
        return {{CGRectGetMaxX(panel), y}, lying};
    }
}

} // namespace

PopoverGeometry::Place PopoverGeometry::place(CGSize size) const {
    const auto free = withoutEdges(room);
    const auto side = sideFor(size, free, source);
    const auto panel = panelFrame(side, size, free, source);
    return {.side = side, .panel = panel, .arrow = arrowFrame(side, panel, source)};
}
