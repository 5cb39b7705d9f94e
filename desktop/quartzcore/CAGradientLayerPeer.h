#pragma once

#include "CALayerPeer.h"
#include "LayerDelegate.h"
#include "QuartzCore/CAGradientLayer.h"

#include <QBrush>
#include <QColor>
#include <vector>

/// The desktop's half of a gradient layer, which paints it. Made with the layer.
// NOLINTNEXTLINE(misc-multiple-inheritance): an interface whose answers may be left out
class CAGradientLayerPeer final : public CALayerPeer, public LayerDelegate {
public:
    using Object = CAGradientLayer;

    explicit CAGradientLayerPeer(CAGradientLayer& layer);

    void setColors(const std::vector<Ref<UIColor>>& colors);
    void setStartPoint(CGPoint point);
    void setEndPoint(CGPoint point);

    // LayerDelegate:
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override;
    [[nodiscard]] Traits layerTraits() const override;

private:
    [[nodiscard]] QBrush gradientIn(const CGRect& bounds) const;

    std::vector<QColor> colors_;
    CGPoint start_{0.5, 0};
    CGPoint end_{0.5, 1};
};
