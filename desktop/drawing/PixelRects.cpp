#include "PixelRects.h"

#include "PixelRows.h"

#include <QRgb>
#include <algorithm>
#include <cstring>
#include <span>
#include <vector>

namespace {

constexpr int opaque = 255;

std::size_t bytesOf(int pixels) {
    return static_cast<std::size_t>(pixels) * PixelRows::pixelSize;
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
    const std::vector pixels(static_cast<std::size_t>(region.boundingRect().width()), premultiplied(color));
    const auto* const bytes = reinterpret_cast<const uchar*>(pixels.data());
    const auto rest = static_cast<std::uint8_t>(opaque - color.alpha());
    for (const auto& rect : region) {
        const auto size = bytesOf(rect.width());
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            PixelRows::paintOver({picture.scanLine(y) + bytesOf(rect.left()), size}, {bytes, size}, rest);
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
