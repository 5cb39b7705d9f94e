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

QRect PaintItem::partPaintedSmaller() const {
    constexpr auto leastOpaque = 0.85; // of the picture
    const auto areaOf = [](QSize size) { return static_cast<double>(size.width()) * size.height(); };
    const auto filledPart = inner->opaque();
    return areaOf(filledPart.size()) >= leastOpaque * areaOf(inner->size()) ? filledPart
                                                                            : QRect({}, inner->size());
}

QRectF PaintItem::placeOfInner(const QRect& part) const {
    const auto place = placeOfInner();
    const auto horizontally = place.width() / inner->size().width();
    const auto vertically = place.height() / inner->size().height();
    return {place.left() + part.left() * horizontally, place.top() + part.top() * vertically,
            part.width() * horizontally, part.height() * vertically};
}
