#include "screen/StatusGlyphs.h"

#include <QPainterPathStroker>
#include <algorithm>

namespace {

QPainterPath roundedRect(double x, double y, double width, double height, double radius) {
    QPainterPath path;
    path.addRoundedRect(QRectF(x, y, width, height), radius, radius);
    return path;
}

} // namespace

QPainterPath StatusGlyphs::signal() {
    constexpr auto bars = 4;
    constexpr auto barWidth = 3.0;
    constexpr auto pitch = (signalWidth - barWidth) / (bars - 1);
    constexpr auto shortest = 4.0;
    constexpr auto tallest = 10.7;
    QPainterPath path;
    for (auto bar = 0; bar < bars; ++bar) {
        const auto barHeight = shortest + (tallest - shortest) * bar / (bars - 1);
        path.addPath(roundedRect(pitch * bar, (height + tallest) / 2 - barHeight,
                                 barHeight > 0 ? barWidth : 0, barHeight, 1));
    }
    return path;
}

QPainterPath StatusGlyphs::wireless() {
    constexpr auto arcs = 3;
    constexpr auto ring = 11.0 / (2 * arcs - 1); ///< of an arc, and of the gap between two
    constexpr auto aperture = 86.0;              ///< degrees
    const QPointF foot(wirelessWidth / 2, height - 0.2);
    QPainterPath path;
    for (auto arc = 0; arc < arcs; ++arc) {
        const auto inner = 2 * arc * ring;
        const auto outer = inner + ring * (arc == 0 ? 1.25 : 1);
        const auto square = [&foot](double radius) {
            return QRectF(foot.x() - radius, foot.y() - radius, 2 * radius, 2 * radius);
        };
        QPainterPath sector;
        sector.arcMoveTo(square(outer), 90 + aperture / 2);
        sector.arcTo(square(outer), 90 + aperture / 2, -aperture);
        if (arc == 0)
            sector.lineTo(foot);
        else
            sector.arcTo(square(inner), 90 - aperture / 2, aperture);
        sector.closeSubpath();
        path.addPath(sector);
    }
    return path;
}

QPainterPath StatusGlyphs::batteryOutline() {
    constexpr auto line = 1.0;
    constexpr auto bodyWidth = 22.0;
    constexpr auto bodyRadius = 3.3;
    const auto body = roundedRect(line / 2, line / 2, bodyWidth - line, height - line, bodyRadius - line / 2);
    QPainterPathStroker stroker;
    stroker.setWidth(line);
    auto path = stroker.createStroke(body);
    constexpr auto capHeight = 4.0;
    QPainterPath cap;
    const QRectF capBox(bodyWidth + line - 1.4, (height - capHeight) / 2, 2.8, capHeight);
    cap.arcMoveTo(capBox, 90);
    cap.arcTo(capBox, 90, -180);
    cap.closeSubpath();
    path.addPath(cap);
    return path;
}

QPainterPath StatusGlyphs::batteryCharge() {
    return roundedRect(2, 2, 18, height - 4, 1.6);
}
