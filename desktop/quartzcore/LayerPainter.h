#pragma once

#include "LayerPictures.h"
#include "PaintList.h"
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

private:
    /// The layers' own pictures, those within each other too.
    void bringUpToDate(const PaintList& list);
    void bringUpToDate(const PaintItem& item);

    ScratchImages scratch_;
    ShadowRenderer shadows_;
    LayerPictures pictures_;
};
