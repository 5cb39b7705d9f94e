#include "PixelRects.h"

#include "PixelRows.h"

#include <QRgb>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <span>
#include <vector>

namespace {

constexpr int opaque = 255;

std::size_t bytesOf(int pixels) {
    return static_cast<std::size_t>(pixels) * PixelRows::pixelSize;
}

std::span<const uchar> pixelsOf(const QImage& picture, int left, int y, int count) {
    return {picture.constScanLine(y) + bytesOf(left), bytesOf(count)};
}

QRgb premultiplied(const QColor& color) {
    return qPremultiply(color.rgba());
}

} // namespace

void PixelRects::fill(QImage& picture, const QRegion& region, const QColor& color) {
    const auto pixel = premultiplied(color);
    for (const auto& rect : region) {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y)) + rect.left();
            std::fill_n(row, rect.width(), pixel);
        }
    }
}

void PixelRects::paintOver(QImage& picture, const QRegion& region, const QColor& color) {
    if (color.alpha() == opaque) {
        fill(picture, region, color);
        return;
    }
    if (color.alpha() == 0)
        return;
    const std::vector pixels(static_cast<std::size_t>(region.boundingRect().width()), premultiplied(color));
    const auto* const bytes = reinterpret_cast<const uchar*>(pixels.data());
    const auto rest = static_cast<std::uint8_t>(opaque - color.alpha());
    for (const auto& rect : region) {
        const auto size = bytesOf(rect.width());
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            PixelRows::paintColorOver({picture.scanLine(y) + bytesOf(rect.left()), size}, {bytes, size},
                                      rest);
    }
}

void PixelRects::copy(const QImage& from, QImage& picture, const QRegion& region, QPoint corner) {
    for (const auto& rect : region) {
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            std::memcpy(picture.scanLine(y) + bytesOf(rect.left()),
                        from.constScanLine(y - corner.y()) + bytesOf(rect.left() - corner.x()),
                        bytesOf(rect.width()));
    }
}

void PixelRects::paintOver(QImage& picture, const QRegion& region, const QImage& over, QPoint corner,
                           double opacity) {
    const auto share = static_cast<std::uint8_t>(std::lround(opacity * opaque));
    for (const auto& rect : region& over.rect().translated(corner)) {
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            PixelRows::paintOver({picture.scanLine(y) + bytesOf(rect.left()), bytesOf(rect.width())},
                                 pixelsOf(over, rect.left() - corner.x(), y - corner.y(), rect.width()),
                                 share);
    }
}

void PixelRects::bringBack(QImage& picture, const QRegion& region, const QImage& before, const QImage& mask,
                           QPoint corner) {
    for (const auto& rect : region) {
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            PixelRows::bringBack({picture.scanLine(y) + bytesOf(rect.left()), bytesOf(rect.width())},
                                 pixelsOf(before, rect.left() - corner.x(), y - corner.y(), rect.width()),
                                 pixelsOf(mask, rect.left() - corner.x(), y - corner.y(), rect.width()));
    }
}
