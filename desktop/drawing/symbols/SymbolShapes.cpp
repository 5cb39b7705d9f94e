#include "symbols/SymbolShapes.h"

#include <QPainterPathStroker>
#include <vector>

namespace {

constexpr double curveThreshold = 1; ///< how exact a stroke is, in units of a shape some 1000 large

/// The closed curves that a path is made of, each filled without holes.
std::vector<QPainterPath> curvesOf(const QPainterPath& path) {
    std::vector<QPainterPath> curves;
    for (int index = 0; index < path.elementCount(); ++index) {
        const auto element = path.elementAt(index);
        if (element.isMoveTo()) {
            curves.emplace_back(element);
        } else if (element.isLineTo()) {
            curves.back().lineTo(element);
        } else {
            curves.back().cubicTo(element, path.elementAt(index + 1), path.elementAt(index + 2));
            index += 2;
        }
    }
    return curves;
}

QPainterPath withoutHoles(const QPainterPath& shape) {
    QPainterPath filled;
    for (const auto& curve : curvesOf(shape))
        filled = filled.united(curve);
    return filled;
}

} // namespace

QPainterPath grown(const QPainterPath& shape, double margin) {
    QPainterPathStroker stroker;
    stroker.setWidth(2 * margin);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCurveThreshold(curveThreshold);
    return shape.united(stroker.createStroke(shape));
}

QPainterPath withWiderHoles(const QPainterPath& shape, double margin) {
    const auto filled = withoutHoles(shape);
    const auto holes = filled.subtracted(shape);
    return holes.isEmpty() ? shape : filled.subtracted(grown(holes, margin));
}
