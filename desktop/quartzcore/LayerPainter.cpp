#include "LayerPainter.h"

#include "Painting.h"

void LayerPainter::paint(const PaintList& list, const QRegion& damage, QImage& picture) {
    scratch_.setSize(picture.size());
    Painting(list, damage, picture, scratch_, shadows_).paintAll();
}
