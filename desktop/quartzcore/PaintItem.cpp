#include "PaintItem.h"

#include "PaintList.h"

QRectF PaintItem::placeOfInner() const {
    const auto scale = inner->scale();
    const auto corner = innerPlace.toPointF() / scale + QPointF(look.bounds.origin.x, look.bounds.origin.y);
    return look.transform().mapRect(QRectF(corner, inner->size().toSizeF() / scale));
}
