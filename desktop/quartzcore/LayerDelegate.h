#pragma once

#include "CoreGraphics/CGGeometry.h"

class QPainter;
struct Traits;

/// Paints what a layer shows between its background and its sublayers: a text, an image, a gradient.
class LayerDelegate {
public:
    virtual ~LayerDelegate() = default;

    /// \param painter in points of the layer's bounds, with smooth edges
    /// \param bounds what is shown now, which differs from the layer's own bounds while they are animated
    virtual void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) = 0;

    /// Whether that paints anything at all; it is not called where it does not.
    [[nodiscard]] virtual bool hasContents() const { return true; }

    /// Where that is painted, when it is not the bounds; nothing is seen of it outside.
    [[nodiscard]] virtual CGRect contentsRect(const CGRect& bounds) const { return bounds; }

    /// What the layer and all within it depend on.
    [[nodiscard]] virtual Traits layerTraits() const = 0;
};
