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

/// The pixels of a rectangle, row by row, from its first. Qt looks at each row that it is asked for whether
/// the picture is shared, which takes as long as a short row.
template <class Byte>
class RowsOf {
public:
    RowsOf(Byte* first, qsizetype bytesPerLine, int width)
        : row_(first),
          bytesPerLine_(bytesPerLine),
          size_(bytesOf(width)) {}

    std::span<Byte> next() {
        const std::span row(row_, size_);
        row_ += bytesPerLine_;
        return row;
    }

private:
    Byte* row_;
    qsizetype bytesPerLine_;
    std::size_t size_;
};

RowsOf<uchar> rowsIn(QImage& picture, const QRect& rect) {
    return {picture.scanLine(rect.top()) + bytesOf(rect.left()), picture.bytesPerLine(), rect.width()};
}

RowsOf<const uchar> rowsIn(const QImage& picture, const QRect& rect, QPoint corner) {
    return {picture.constScanLine(rect.top() - corner.y()) + bytesOf(rect.left() - corner.x()),
            picture.bytesPerLine(), rect.width()};
}

QRgb premultiplied(const QColor& color) {
    return qPremultiply(color.rgba());
}

} // namespace

void PixelRects::fill(QImage& picture, const QRegion& region, const QColor& color) {
    const auto pixel = premultiplied(color);
    for (const auto& rect : region) {
        auto rows = rowsIn(picture, rect);
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            std::fill_n(reinterpret_cast<QRgb*>(rows.next().data()), rect.width(), pixel);
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
        auto rows = rowsIn(picture, rect);
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            PixelRows::paintColorOver(rows.next(), {bytes, bytesOf(rect.width())}, rest);
    }
}

void PixelRects::copy(const QImage& from, QImage& picture, const QRegion& region, QPoint corner) {
    for (const auto& rect : region) {
        auto rows = rowsIn(picture, rect);
        auto others = rowsIn(from, rect, corner);
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            std::memcpy(rows.next().data(), others.next().data(), bytesOf(rect.width()));
    }
}

void PixelRects::paintOver(QImage& picture, const QRegion& region, const QImage& over, QPoint corner,
                           double opacity) {
    const auto share = static_cast<std::uint8_t>(std::lround(opacity * opaque));
    for (const auto& rect : region& over.rect().translated(corner)) {
        auto rows = rowsIn(picture, rect);
        auto others = rowsIn(over, rect, corner);
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            PixelRows::paintOver(rows.next(), others.next(), share);
    }
}

void PixelRects::bringBack(QImage& picture, const QRegion& region, const QImage& before, const QImage& mask,
                           QPoint corner) {
    for (const auto& rect : region) {
        auto rows = rowsIn(picture, rect);
        auto rowsBefore = rowsIn(before, rect, corner);
        auto masks = rowsIn(mask, rect, corner);
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            PixelRows::bringBack(rows.next(), rowsBefore.next(), masks.next());
    }
}
