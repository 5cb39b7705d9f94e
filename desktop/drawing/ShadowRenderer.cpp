#include "ShadowRenderer.h"

#include "GaussianBlur.h"
#include "PainterBands.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace {

constexpr double reach = 3; ///< of what can be seen of a blur, in standard deviations

/// Shadows whose places within a pixel differ by less than a fourth are painted as one.
constexpr double placesInPixel = 4;

constexpr double largestSide =
    8192; ///< of an image, in pixels; of a larger shadow only what is visible is made

/// How many pixels a point is, on average over the directions.
double pixelsPerPoint(const QTransform& transform) {
    return std::sqrt(std::abs(transform.determinant()));
}

QTransform withoutTranslation(const QTransform& transform) {
    return {transform.m11(), transform.m12(), transform.m21(), transform.m22(), 0, 0};
}

QPointF wholePixel(QPointF point) {
    return {std::floor(point.x()), std::floor(point.y())};
}

QPointF toPlaceInPixel(QPointF point) {
    return QPointF(std::round(point.x() * placesInPixel), std::round(point.y() * placesInPixel)) /
           placesInPixel;
}

/// The part of a shape that the device can show any shadow of, when the shape is very large.
QPainterPath limited(const QPainterPath& shape, const QPaintDevice& device, QPointF position, double margin) {
    const auto size = shape.boundingRect().size();
    if (std::max(size.width(), size.height()) <= largestSide)
        return shape;
    const double ratio = device.devicePixelRatio();
    QPainterPath visible;
    visible.addRect(QRectF(-position, QSizeF(device.width(), device.height()) * ratio)
                        .adjusted(-margin, -margin, margin, margin));
    return shape.intersected(visible);
}

} // namespace

void ShadowRenderer::paint(QPainter& painter, const QPainterPath& shape, const Shadow& shadow) {
    const auto toPixels = painter.deviceTransform();
    const auto toPixelSizes = withoutTranslation(toPixels);
    const double sigma = std::max(0.0, shadow.radius) * pixelsPerPoint(toPixels);
    const auto position = toPixels.map(shadow.offset);
    const auto cast = limited(toPixelSizes.map(shape), *painter.device(), position, reach * sigma);
    if (cast.isEmpty())
        return;
    const auto place = toPlaceInPixel(position - wholePixel(position));
    const auto& made =
        shadowFor({.shape = cast, .place = place, .sigma = sigma, .color = shadow.color.rgb()});
    const double ratio = painter.device()->devicePixelRatio();
    painter.save();
    painter.resetTransform();
    painter.scale(1 / ratio, 1 / ratio);
    painter.setOpacity(painter.opacity() * shadow.opacity * static_cast<double>(shadow.color.alphaF()));
    PainterBands::draw(painter, wholePixel(position) + made.origin, made.image);
    painter.restore();
}

const ShadowRenderer::Made& ShadowRenderer::shadowFor(const Key& key) {
    const auto known = std::ranges::find(kept_, key, &Made::key);
    if (known != kept_.end()) {
        kept_.splice(kept_.begin(), kept_, known);
        return kept_.front();
    }
    kept_.push_front(make(key));
    ++madeCount_;
    keptBytes_ += kept_.front().image.sizeInBytes();
    while (keptBytes_ > capacity && kept_.size() > 1) {
        keptBytes_ -= kept_.back().image.sizeInBytes();
        kept_.pop_back();
    }
    return kept_.front();
}

ShadowRenderer::Made ShadowRenderer::make(const Key& key) {
    const double margin = std::ceil(reach * key.sigma) + 1;
    const auto area = key.shape.boundingRect().adjusted(-margin, -margin, margin, margin).toAlignedRect();
    const auto shape = key.shape.translated(key.place - area.topLeft());
    return {key, blurredShape(shape, area.size(), key.sigma, key.color), area.topLeft()};
}
