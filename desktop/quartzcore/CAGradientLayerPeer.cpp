#include "CAGradientLayerPeer.h"

#include "DesktopColor.h"
#include "PainterBands.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>

namespace {

QPointF placeIn(const CGRect& bounds, CGPoint unit) {
    return {bounds.origin.x + unit.x * bounds.size.width, bounds.origin.y + unit.y * bounds.size.height};
}

} // namespace

CAGradientLayerPeer::CAGradientLayerPeer(CAGradientLayer& layer) : CALayerPeer(layer) {
    delegate = this;
}

void CAGradientLayerPeer::setColors(const std::vector<Ref<UIColor>>& colors) {
    colors_.clear();
    for (const auto& color : colors)
        colors_.push_back(DesktopColor::resolve(color, layerTraits()).toQColor());
    setNeedsDisplay();
}

void CAGradientLayerPeer::setStartPoint(CGPoint point) {
    start_ = point;
    setNeedsDisplay();
}

void CAGradientLayerPeer::setEndPoint(CGPoint point) {
    end_ = point;
    setNeedsDisplay();
}

void CAGradientLayerPeer::drawLayer(QPainter& painter, const CGRect& bounds, const Traits& /*traits*/) {
    const auto& [origin, size] = bounds;
    const auto greatest = std::min(size.width, size.height) / 2;
    const auto radius = std::min(shownValue(LayerProperty::CornerRadius)[0], greatest);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradientIn(bounds));
    const QRectF rect(origin.x, origin.y, size.width, size.height);
    PainterBands::paint(painter, rect, [&] { painter.drawRoundedRect(rect, radius, radius); });
}

Traits CAGradientLayerPeer::layerTraits() const {
    const auto* const around = superlayer() != nullptr ? superlayer()->peer().delegate : nullptr;
    return around != nullptr ? around->layerTraits() : Traits();
}

QBrush CAGradientLayerPeer::gradientIn(const CGRect& bounds) const {
    if (colors_.empty())
        return Qt::NoBrush;
    QLinearGradient gradient(placeIn(bounds, start_), placeIn(bounds, end_));
    const auto last = static_cast<double>(std::max<std::size_t>(colors_.size() - 1, 1));
    for (std::size_t index = 0; index < colors_.size(); ++index)
        gradient.setColorAt(static_cast<double>(index) / last, colors_[index]);
    return gradient;
}
