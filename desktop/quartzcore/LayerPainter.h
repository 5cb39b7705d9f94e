#pragma once

#include "LayerPictures.h"
#include "PaintList.h"
#include "PictureRows.h"
#include "ScratchImages.h"
#include "ShadowRenderer.h"

#include <QImage>
#include <QRegion>

/// Paints paint lists. Keeps shadows, pictures of layers and room to work in from one picture to the next;
/// one for each picture.
class LayerPainter {
public:
    /// Paints the pixels of `damage` anew. \param picture of the list's size, ARGB32 premultiplied
    void paint(const PaintList& list, const QRegion& damage, QImage& picture);

    // For the paintings that it makes.
    /// The picture of a layer that keeps one, brought up to date in a part of it; valid until the painting
    /// ends.
    [[nodiscard]] const QImage& pictureOf(const PaintItem& item, const QRegion& part);

    /// The rows of that picture as they are now. Where it has changed just now, and may change again in the
    /// next painting, it is left as it is and made as it is read, if that is work on whole pixels.
    [[nodiscard]] PictureRows rowsOf(const PaintItem& item, const QRegion& part);

    /// What is painted smaller of that, so many times smaller, brought up to date in the rows that a part of
    /// the layer's place is painted of; pictures within it are painted so from the start.
    /// \param factor 2, 4 and so on
    [[nodiscard]] const QImage& smallerPictureOf(const PaintItem& item, int factor, const QRect& part);

    [[nodiscard]] ScratchImages& scratch() { return scratch_; }

    [[nodiscard]] ShadowRenderer& shadows() { return shadows_; }

private:
    void use(const PaintList& list);
    LayerPictures::Kept& compare(const PaintItem& item);
    void paintSmaller(const PaintItem& item, const QRect& rows, LayerPictures::Smaller& smaller);

    ScratchImages scratch_;
    ShadowRenderer shadows_;
    LayerPictures pictures_;
};
