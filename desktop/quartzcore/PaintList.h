#pragma once

#include "PaintItem.h"

#include <QRect>
#include <QSize>
#include <cstddef>
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

    /// Of the picture, in pixels for a point.
    [[nodiscard]] double scale() const { return scale_; }

    /// A part of the picture that lets nothing through: the largest that one layer fills, with others that
    /// adjoin it; may be empty.
    [[nodiscard]] QRect opaque() const;

    /// What the first items show in a part of the picture, larger or smaller. \param size that it comes out
    /// at
    [[nodiscard]] PaintList reduced(std::size_t count, const QRect& part, QSize size) const;

    /// Whether there are layers in it that keep pictures.
    [[nodiscard]] bool hasPictures() const;

    /// Whether a backdrop in it shows what lies behind the picture.
    [[nodiscard]] bool showsWhatIsBehind() const;

    /// Whether the same layers look different a moment later.
    [[nodiscard]] bool isAnimating() const { return isAnimating_; }

private:
    /// What the layers around a layer mean for it.
    struct Surroundings {
        AffineTransform toPixels; ///< from the superlayer's bounds
        QRect clip;
        QRect fullView;
        std::uint64_t enclosing = 0;
        bool fades = false; ///< in or out, so that what is within it had better keep pictures
    };

    /// What the picture of a layer shows that keeps one.
    PaintList(const CALayer& layer, const LayerLook& look, double scale);

    [[nodiscard]] static Surroundings within(const PaintItem& item);
    /// Tells an item with a look where it is, without what is within it.
    static void place(PaintItem& item, const Surroundings& around);
    void add(const CALayer& layer, const Surroundings& around);
    void addItem(const CALayer& layer, const LayerLook& look, double opacity, const Surroundings& around,
                 bool fades);
    /// \returns whether the layer is painted by way of a picture of its own
    bool addPicture(const CALayer& layer, const LayerLook& look, double opacity, const Surroundings& around);
    void addSublayers(const CALayer& layer, std::size_t index, bool fades);
    void moveBy(QPoint distance);

    std::vector<PaintItem> items_;
    QSize size_;
    double scale_ = 1;
    bool isAnimating_ = false;
};
