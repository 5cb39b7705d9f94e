#include "CAGradientLayer.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "LayerDelegate.h"
#include "ObjectiveC/Class.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>

namespace {

const Class classObject = Class::define<CAGradientLayer, CALayer>("CAGradientLayer");

QPointF placeIn(const CGRect& bounds, CGPoint unit) {
    return {bounds.origin.x + unit.x * bounds.size.width, bounds.origin.y + unit.y * bounds.size.height};
}

} // namespace

/// Paints the gradient.
class CAGradientLayer::Filling final : public LayerDelegate {
public:
    explicit Filling(const CALayerPeer& layer) : layer_(layer) {}

    // LayerDelegate:
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& /*traits*/) override {
        const auto& [origin, size] = bounds;
        const auto greatest = std::min(size.width, size.height) / 2;
        const auto radius = std::min(layer_.shownValue(LayerProperty::CornerRadius)[0], greatest);
        painter.setPen(Qt::NoPen);
        painter.setBrush(gradientIn(bounds));
        painter.drawRoundedRect(QRectF(origin.x, origin.y, size.width, size.height), radius, radius);
    }

    [[nodiscard]] Traits layerTraits() const override {
        const auto* const around = layer_.superlayer();
        const auto* const delegate = around != nullptr ? around->peer().delegate : nullptr;
        return delegate != nullptr ? delegate->layerTraits() : Traits();
    }

    std::vector<QColor> colors;
    CGPoint start{0.5, 0};
    CGPoint end{0.5, 1};

private:
    [[nodiscard]] QBrush gradientIn(const CGRect& bounds) const {
        if (colors.empty())
            return Qt::NoBrush;
        QLinearGradient gradient(placeIn(bounds, start), placeIn(bounds, end));
        const auto last = static_cast<double>(std::max<std::size_t>(colors.size() - 1, 1));
        for (std::size_t index = 0; index < colors.size(); ++index)
            gradient.setColorAt(static_cast<double>(index) / last, colors[index]);
        return gradient;
    }

    const CALayerPeer& layer_;
};

CAGradientLayer::CAGradientLayer() : filling_(std::make_unique<Filling>(peer())) {
    peer().delegate = filling_.get();
}

CAGradientLayer::~CAGradientLayer() {
    peer().delegate = nullptr;
}

void CAGradientLayer::setColors(const std::vector<Ref<UIColor>>& colors) {
    filling_->colors.clear();
    for (const auto& color : colors)
        filling_->colors.push_back(DesktopColor::resolve(color, filling_->layerTraits()).toQColor());
    peer().setNeedsDisplay();
}

void CAGradientLayer::setStartPoint(CGPoint point) {
    filling_->start = point;
    peer().setNeedsDisplay();
}

void CAGradientLayer::setEndPoint(CGPoint point) {
    filling_->end = point;
    peer().setNeedsDisplay();
}
