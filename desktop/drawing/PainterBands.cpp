#include "PainterBands.h"

#include <QPainter>

namespace {

constexpr auto rowsAtOnce = 64;

} // namespace

std::vector<QRect> PainterBands::of(const QRegion& region) {
    std::vector<QRect> bands;
    for (const auto& rect : region) {
        for (auto top = rect.top(); top <= rect.bottom(); top += rowsAtOnce)
            bands.push_back(QRect(rect.left(), top, rect.width(), rowsAtOnce) & rect);
    }
    return bands;
}

void PainterBands::draw(QPainter& painter, QPointF place, const QImage& image) {
    for (const auto& band : of(image.rect()))
        painter.drawImage(place + band.topLeft(), image, band);
}

void PainterBands::draw(QPainter& painter, const QRectF& place, const QImage& image) {
    const auto bands = of(painter.deviceTransform().mapRect(place).toAlignedRect());
    if (bands.size() == 1) {
        painter.drawImage(place, image);
        return;
    }
    const auto transform = painter.worldTransform();
    const auto pixel = 1 / painter.device()->devicePixelRatioF();
    for (const auto& band : bands) {
        painter.save();
        painter.resetTransform();
        painter.scale(pixel, pixel);
        painter.setClipRect(band, Qt::IntersectClip);
        painter.setWorldTransform(transform);
        painter.drawImage(place, image);
        painter.restore();
    }
}
