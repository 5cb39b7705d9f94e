#include "PaintItem.h"

#include "PaintList.h"

bool PaintItem::isInnerScaled() const {
    return look.toPixels.a != inner->scale() || look.toPixels.d != inner->scale();
}

QPoint PaintItem::cornerOfInner() const {
    const auto origin = look.toPixels(look.bounds.origin);
    return QPointF(origin.x, origin.y).toPoint() + innerPlace;
}

QRectF PaintItem::placeOfInner() const {
    const auto size = inner->size().toSizeF();
    if (!isInnerScaled())
        return {cornerOfInner(), size};
    const auto scale = inner->scale();
    const auto corner = innerPlace.toPointF() / scale + QPointF(look.bounds.origin.x, look.bounds.origin.y);
    return look.transform().mapRect(QRectF(corner, size / scale));
}
