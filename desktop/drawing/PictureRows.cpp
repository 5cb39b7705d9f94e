#include "PictureRows.h"

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
    const auto& band = bandWith(pixels);
    const auto offset = static_cast<std::size_t>(left - band.place.left()) * PixelRows::pixelSize;
    return {band.rows.constScanLine(y - band.place.top()) + offset, bytes};
}

const PictureRows::Band& PictureRows::bandWith(const QRect& pixels) {
    const auto other = bands_.size() - 1 - recent_;
    if (!bands_[recent_].place.contains(pixels)) {
        if (!bands_[other].place.contains(pixels))
            make(bands_[other], pixels);
        recent_ = other;
    }
    return bands_[recent_];
}

void PictureRows::make(Band& band, const QRect& pixels) const {
    band.place = {pixels.left(), pixels.top(), pixels.width(), PixelWork::rowsAtOnce};
    if (band.rows.size() != band.place.size())
        band.rows = QImage(band.place.size(), QImage::Format_ARGB32_Premultiplied);
    made_->work.doWithin(band.place, band.rows);
}
