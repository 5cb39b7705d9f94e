#pragma once

#include "BlurredBackdrop.h"
#include "PaintList.h"
#include "PaintSurface.h"
#include "PixelWork.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRegion>
#include <cstddef>
#include <vector>

class LayerPainter;

/// The painting of one picture, or of a part of it. Everything is painted at its place in pictures of the
/// whole's size, so that the same pixels come out whatever part is painted. Made by LayerPainter.
class Painting {
public:
    /// \param color behind all layers
    Painting(const PaintList& list, const QRegion& damage, QImage& picture, const QColor& color,
             LayerPainter& painter);

    void paintAll();

    /// What `paintAll` would do, to be done later; the picture is not touched. \pre there is nothing in the
    /// damage but work on whole pixels
    [[nodiscard]] PixelWork putOff();

    /// Those of some rows where a list has nothing but work on whole pixels.
    [[nodiscard]] static QRegion wholePixelsOnly(const PaintList& list, QRegion rows);

private:
    void paintInto(PaintSurface& surface);
    /// Where nothing that lies in front covers an item.
    void findSeen();
    /// The same for a part of an item with all within it.
    [[nodiscard]] QRegion seenWithin(const PaintItem& item, const QRegion& part) const;
    [[nodiscard]] BlurredBackdrop backdropOf(std::size_t index, const Backdrop& backdrop) const;
    void paintItems(std::size_t first, std::size_t end, PaintSurface& surface);
    void paintItem(std::size_t index, PaintSurface& surface);
    void paintGroup(std::size_t index, PaintSurface& surface);
    void paintLayer(std::size_t index, PaintSurface& surface);
    void paintInside(std::size_t index, PaintSurface& surface);
    void paintMasked(std::size_t index, PaintSurface& surface);
    void paintShadow(const PaintItem& item, PaintSurface& surface);
    /// With the layer's background.
    void paintBackdrop(std::size_t index, const Backdrop& backdrop, PaintSurface& surface);
    /// \param opacity of a group that has nothing else
    void paintBackground(std::size_t index, PaintSurface& surface, double opacity = 1);
    void paintContents(const PaintItem& item, PaintSurface& surface);
    void paintPicture(std::size_t index, PaintSurface& surface, double opacity = 1);
    void paintScaledPicture(const PaintItem& item, const QRegion& region, PaintSurface& surface) const;
    void putScaledPicture(const PaintItem& item, const QRegion& region, PaintSurface& surface) const;
    void paintBorder(const PaintItem& item, PaintSurface& surface);
    [[nodiscard]] QPainter& readied(PaintSurface& surface, const PaintItem& item, const QRegion& clip) const;

    const PaintList& list_;
    const std::vector<PaintItem>& items_;
    const QRegion& damage_;
    QImage& picture_;
    QColor color_; ///< behind all layers
    LayerPainter& painter_;
    std::vector<QRegion> seen_;    ///< of the damage, where each item is seen, without what is within it
    std::vector<QRegion> covered_; ///< by each item and those in front of it; then by none
    std::vector<bool> isAnySeen_;  ///< of each item with all within it
};
