#pragma once

#include "PaintItem.h"

#include <QSize>
#include <vector>

class CALayer;

/// What is on the screen at one moment: the visible layers from back to front, each followed by those within
/// it. A picture of the layer tree that is compared with the next one. A value; it keeps no layer alive.
class PaintList {
public:
    PaintList() = default;

    /// Layers without a superlayer at the device's present time, the frontmost last, in a picture of that
    /// size. \param scale pixels per point
    PaintList(const std::vector<const CALayer*>& roots, CGSize size, double scale);

    [[nodiscard]] const std::vector<PaintItem>& items() const { return items_; }

    /// Of the picture, in pixels.
    [[nodiscard]] QSize size() const { return size_; }

    /// Whether the same layers look different a moment later.
    [[nodiscard]] bool isAnimating() const { return isAnimating_; }

private:
    /// What the layers around a layer mean for it.
    struct Surroundings {
        AffineTransform toPixels; ///< from the superlayer's bounds
        QRect clip;
        std::uint64_t enclosing = 0;
    };

    [[nodiscard]] static Surroundings within(const PaintItem& item);
    void add(const CALayer& layer, const Surroundings& around);
    void addSublayers(const CALayer& layer, std::size_t index);

    std::vector<PaintItem> items_;
    QSize size_;
    bool isAnimating_ = false;
};
