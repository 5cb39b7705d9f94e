#include "PainterBands.h"

#include <QPainter>

namespace {

/// From 96 pieces of rows on a painter shares them out. Most rows of what is filled are one piece.
constexpr auto rowsAtOnce = 64;

/// Of what is not at whole pixels, and so has a soft edge on either side.
constexpr auto softRowsAtOnce = 31;

std::vector<QRect> bandsOf(const QRegion& region, int rows) {
    std::vector<QRect> bands;
    for (const auto& rect : region) {
        for (auto top = rect.top(); top <= rect.bottom(); top += rows)
            bands.push_back(QRect(rect.left(), top, rect.width(), rows) & rect);
    }
    return bands;
}

} // namespace

std::vector<QRect> PainterBands::of(const QRegion& region) {
    return bandsOf(region, rowsAtOnce);
}

void PainterBands::draw(QPainter& painter, QPointF place, const QImage& image) {
    for (const auto& band : of(image.rect()))
        painter.drawImage(place + band.topLeft(), image, band);
}

void PainterBands::draw(QPainter& painter, const QRectF& place, const QImage& image) {
    paint(painter, place, [&] { painter.drawImage(place, image); });
}

void PainterBands::paint(QPainter& painter, const QRectF& place, const std::function<void()>& something) {
    const auto bands = bandsOf(painter.deviceTransform().mapRect(place).toAlignedRect(), softRowsAtOnce);
    if (bands.size() == 1) {
        something();
        return;
    }
    const auto transform = painter.worldTransform();
    const auto pixel = 1 / painter.device()->devicePixelRatioF();
    painter.save();
    painter.resetTransform();
    painter.scale(pixel, pixel);
    const auto seen =
        painter.hasClipping() ? painter.clipBoundingRect() : QRectF(bands.front() | bands.back());
    for (const auto& band : bands) {
        if (!seen.intersects(band))
            continue;
        painter.save();
        painter.setClipRect(band, Qt::IntersectClip);
        painter.setWorldTransform(transform);
        something();
        painter.restore();
    }
    painter.restore();
}
