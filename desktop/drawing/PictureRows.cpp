#include "PictureRows.h"

#include "PicturePool.h"
#include "PixelRows.h"

#include <utility>

PictureRows::PictureRows(const QImage& picture, QSize size, QRegion made, PixelWork work)
    : picture_(&picture),
      size_(size),
      made_(std::make_shared<const Made>(std::move(made), std::move(work))) {}

std::span<const std::uint8_t> PictureRows::row(int y, int left, int width) {
    const auto bytes = static_cast<std::size_t>(width) * PixelRows::pixelSize;
    const QRect pixels(left, y, width, 1);
    if (made_ == nullptr || !made_->region.intersects(pixels))
        return {picture_->constScanLine(y) + static_cast<std::size_t>(left) * PixelRows::pixelSize, bytes};
    return {bands_.rows.constScanLine(madeRowOf(pixels)), bytes};
}

int PictureRows::madeRowOf(const QRect& pixels) {
    auto& [rows, places, recent] = bands_;
    const auto has = [&](std::size_t band) {
        return places[band].contains(pixels) && places[band].width() == pixels.width();
    };
    const auto other = places.size() - 1 - recent;
    if (!has(recent)) {
        if (!has(other))
            make(other, pixels);
        recent = other;
    }
    return static_cast<int>(recent) * PixelWork::rowsAtOnce + pixels.top() - places[recent].top();
}

void PictureRows::make(std::size_t band, const QRect& pixels) {
    auto& [rows, places, recent] = bands_;
    if (rows.width() != pixels.width()) {
        rows = PicturePool::shared().make({pixels.width(), 2 * PixelWork::rowsAtOnce});
        places = {};
    }
    places[band] = {pixels.left(), pixels.top(), pixels.width(), PixelWork::rowsAtOnce};
    QImage part(rows.scanLine(static_cast<int>(band) * PixelWork::rowsAtOnce), pixels.width(),
                PixelWork::rowsAtOnce, rows.bytesPerLine(), rows.format());
    made_->work.doWithin(places[band], part);
}
