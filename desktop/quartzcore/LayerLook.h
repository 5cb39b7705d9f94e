#pragma once

#include "AffineTransform.h"
#include "CALayerPeer.h"
#include "ColorComponents.h"
#include "CoreGraphics/CGGeometry.h"
#include "Traits.h"

#include <QPainterPath>
#include <QTransform>
#include <cstdint>
#include <optional>

/// All that one layer is painted from, without its sublayers, as it is shown at one moment. Two equal looks
/// of a layer are painted alike. A value.
struct LayerLook {
    AffineTransform toPixels; ///< from the bounds to the picture
    CGRect bounds;
    ColorComponents background;
    ColorComponents borderColor;
    double borderWidth = 0;
    double cornerRadius = 0;
    ColorComponents shadowColor;
    CGSize shadowOffset;
    double shadowRadius = 0;
    double shadowOpacity = 0;
    bool masksToBounds = false;
    bool continuousCorners = false;
    bool roundTop = true;
    bool roundBottom = true;
    std::optional<Backdrop> backdrop;
    std::optional<QPainterPath> shadowPath;
    std::uint64_t contentVersion = 0;
    Traits traits;

    friend bool operator==(const LayerLook&, const LayerLook&) = default;

    /// The look of a layer at the device's present time. \param toPixels from the layer's bounds
    [[nodiscard]] static LayerLook of(const CALayerPeer& layer, const AffineTransform& toPixels);

    [[nodiscard]] QTransform transform() const;

    /// The layer's edge in its own points, moved inwards by `inset`; empty when nothing is left.
    [[nodiscard]] QPainterPath outline(double inset = 0) const;

    /// What casts the shadow, in the layer's own points.
    [[nodiscard]] QPainterPath shadowShape() const { return shadowPath ? *shadowPath : outline(); }

    /// A layer that is cut off at its bounds is so with its shadow.
    [[nodiscard]] bool castsShadow() const {
        return shadowOpacity > 0 && shadowColor.alpha > 0 && !masksToBounds;
    }

    /// The bounds in pixels, or the upright rectangle around them.
    [[nodiscard]] QRectF pixelRect() const;

    /// Whether the bounds are upright, square-cornered and exactly whole pixels.
    [[nodiscard]] bool fillsWholePixels() const;

    /// Those pixels. \pre the bounds fill whole ones
    [[nodiscard]] QRect wholePixels() const;

    /// The pixels that are wholly within the bounds, those moved inwards by so many pixels; not valid when
    /// there are none. \pre the bounds are upright
    [[nodiscard]] QRect wholePixelsWithin(double horizontalInset, double verticalInset) const;

    /// The length of a corner's bend, in pixels.
    [[nodiscard]] double cornerPixels() const;

    /// Whether the bounds' edges are upright in the picture.
    [[nodiscard]] bool isUpright() const { return toPixels.b == 0 && toPixels.c == 0; }
};
