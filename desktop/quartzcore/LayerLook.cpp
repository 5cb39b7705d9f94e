#include "LayerLook.h"

#include "ContinuousCorners.h"
#include "LayerDelegate.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double continuousReach = 1.53; ///< of a gradual corner's bend, in radii

/// What two edges in pixels may differ by and still be one.
constexpr double pixelTolerance = 1.0 / 128;

ColorComponents colorOf(const LayerValue& value) {
    const auto part = [&value](std::size_t index) { return std::clamp(value[index], 0.0, 1.0); };
    return {.red = part(0), .green = part(1), .blue = part(2), .alpha = part(3)};
}

CGRect withoutNegativeSize(CGRect rect) {
    rect.size = {std::max(0.0, rect.size.width), std::max(0.0, rect.size.height)};
    return rect;
}

void addCorner(QPainterPath& path, QPointF corner, QPointF center, double radius, double angle) {
    constexpr double quarter = -90; // clockwise
    if (radius > 0)
        path.arcTo(QRectF(center - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)), angle, quarter);
    else
        path.lineTo(corner);
}

/// A rectangle whose corners are quarters of circles.
QPainterPath circularCornersPath(const QRectF& rect, double top, double bottom) {
    QPainterPath path;
    path.moveTo(rect.left(), rect.bottom() - bottom);
    addCorner(path, rect.topLeft(), rect.topLeft() + QPointF(top, top), top, 180);
    addCorner(path, rect.topRight(), rect.topRight() + QPointF(-top, top), top, 90);
    addCorner(path, rect.bottomRight(), rect.bottomRight() - QPointF(bottom, bottom), bottom, 0);
    addCorner(path, rect.bottomLeft(), rect.bottomLeft() + QPointF(bottom, -bottom), bottom, 270);
    path.closeSubpath();
    return path;
}

bool isWhole(double pixels) {
    return std::abs(pixels - std::round(pixels)) < pixelTolerance;
}

} // namespace

LayerLook LayerLook::of(const CALayerPeer& layer, const AffineTransform& toPixels) {
    using enum LayerProperty;
    const auto number = [&layer](LayerProperty property) {
        return std::max(0.0, layer.shownValue(property)[0]);
    };
    const auto color = [&layer](LayerProperty property) { return colorOf(layer.shownValue(property)); };
    const auto hasContents = layer.delegate != nullptr && layer.delegate->hasContents();
    const auto shadowOffset = layer.shownValue(ShadowOffset);
    return {.toPixels = toPixels,
            .bounds = withoutNegativeSize(layer.shownBounds()),
            .background = color(BackgroundColor),
            .borderColor = color(BorderColor),
            .borderWidth = number(BorderWidth),
            .cornerRadius = number(CornerRadius),
            .shadowColor = color(ShadowColor),
            .shadowOffset = {shadowOffset[0], shadowOffset[1]},
            .shadowRadius = number(ShadowRadius),
            .shadowOpacity = std::min(1.0, number(ShadowOpacity)),
            .masksToBounds = layer.masksToBounds,
            .continuousCorners = layer.continuousCorners,
            .roundTop = layer.roundTop,
            .roundBottom = layer.roundBottom,
            .backdrop = layer.backdrop,
            .shadowPath = layer.shadowPath,
            .contentVersion = hasContents ? layer.contentVersion() : 0,
            .traits = hasContents ? layer.delegate->layerTraits() : Traits()};
}

QTransform LayerLook::transform() const {
    return {toPixels.a, toPixels.b, toPixels.c, toPixels.d, toPixels.tx, toPixels.ty};
}

QPainterPath LayerLook::outline(double inset) const {
    const auto rect = QRectF(bounds.origin.x, bounds.origin.y, bounds.size.width, bounds.size.height)
                          .adjusted(inset, inset, -inset, -inset);
    QPainterPath path;
    if (rect.isEmpty())
        return path;
    const auto largest = std::min(rect.width(), rect.height()) / 2;
    const auto radius = std::clamp(cornerRadius - inset, 0.0, largest);
    if (radius == 0 || (!roundTop && !roundBottom))
        path.addRect(rect);
    else if (continuousCorners)
        path = continuousCornersPath(rect, radius, {roundTop, roundTop, roundBottom, roundBottom});
    else
        path = circularCornersPath(rect, roundTop ? radius : 0, roundBottom ? radius : 0);
    return path;
}

QRectF LayerLook::pixelRect() const {
    const auto rect = toPixels(bounds);
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

QRect LayerLook::wholePixels() const {
    const auto rect = pixelRect();
    return {rect.topLeft().toPoint(), rect.bottomRight().toPoint() - QPoint(1, 1)};
}

bool LayerLook::fillsWholePixels() const {
    const auto rect = pixelRect();
    const std::array edges{rect.left(), rect.top(), rect.right(), rect.bottom()};
    return isUpright() && cornerPixels() == 0 && std::ranges::all_of(edges, isWhole);
}

QRect LayerLook::wholePixelsWithin(double horizontalInset, double verticalInset) const {
    const auto rect = pixelRect().adjusted(horizontalInset, verticalInset, -horizontalInset, -verticalInset);
    const auto first = [](double edge) { return static_cast<int>(std::ceil(edge - pixelTolerance)); };
    const auto last = [](double edge) { return static_cast<int>(std::floor(edge + pixelTolerance)) - 1; };
    return {QPoint(first(rect.left()), first(rect.top())), QPoint(last(rect.right()), last(rect.bottom()))};
}

double LayerLook::cornerPixels() const {
    if (!roundTop && !roundBottom)
        return 0;
    const auto scale = std::max(std::hypot(toPixels.a, toPixels.b), std::hypot(toPixels.c, toPixels.d));
    return cornerRadius * scale * (continuousCorners ? continuousReach : 1);
}
