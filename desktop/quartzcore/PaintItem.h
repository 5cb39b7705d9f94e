#pragma once

#include "LayerLook.h"

#include <QRect>
#include <cstddef>
#include <cstdint>
#include <memory>

class LayerDelegate;
class PaintList;

/// One layer of a paint list: its look, its place among the others, and the pixels that it can reach.
struct PaintItem {
    LayerLook look;
    double opacity = 1;          ///< of the layer with all within it
    std::uint64_t identity = 0;  ///< of the layer
    std::uint64_t enclosing = 0; ///< the nearest layer around it that it is faded or cut off with; 0 for none
    std::size_t end = 0;         ///< the index of the first item that is not within it
    LayerDelegate* delegate = nullptr;      ///< paints the contents; may be null
    std::shared_ptr<const PaintList> inner; ///< what the layer's own picture shows; null when it keeps none
    /// Whether nothing of it and within it is painted but its background, which can be painted faded.
    bool isBackgroundOnly = false;
    QPoint innerPlace; ///< of that picture's corner from the origin of the bounds, in its pixels
    QRect clip;        ///< what the layers around it leave of the picture
    QRect innerClip;   ///< what is left for what is within it
    QRect body;        ///< what the layer itself can reach
    QRect extent;      ///< the same with its shadow
    QRect wholeExtent; ///< the same with all within it
    QRect fullView;    ///< where nothing fades what is within it, or cuts it off in a part of a pixel
    QRect filled;      ///< whole pixels in full view that its shape covers; may be empty
    QRect opaque;      ///< where nothing behind it is seen; may be empty

    // Of a layer that keeps a picture.
    /// Whether it is painted larger or smaller than it is kept.
    [[nodiscard]] bool isInnerScaled() const;
    /// Where it is, in pixels.
    [[nodiscard]] QRectF placeOfInner() const;
    /// What of its picture is painted much smaller: without the clear margin of what is opaque, which would
    /// be mixed with it; and where that is.
    [[nodiscard]] QRect partPaintedSmaller() const;
    [[nodiscard]] QRectF placeOfInner(const QRect& part) const;
    /// Where its corner is. \pre it is not scaled
    [[nodiscard]] QPoint cornerOfInner() const;

    /// Whether it is painted apart, and faded as a whole.
    [[nodiscard]] bool isGroup() const { return opacity < 1; }

    /// Whether nothing around it fades it or cuts it off along other edges than those of pixels.
    [[nodiscard]] bool isInFullView() const { return !isGroup() && enclosing == 0; }

    /// Whether it cuts off what is within it along edges that are not those of pixels.
    [[nodiscard]] bool hasSoftMask() const { return look.masksToBounds && !look.fillsWholePixels(); }
};
