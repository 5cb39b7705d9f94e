#include "LayerPainter.h"

#include "PaintDamage.h"
#include "Painting.h"
#include "PixelComponents.h"
#include "PixelRects.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

/// As long as the picture lives and is not painted.
QImage partOf(const QImage& picture, const QRect& part) {
    const auto* const begin = picture.constScanLine(part.top()) + part.left() * picture.depth() / CHAR_BIT;
    return {begin, part.width(), part.height(), picture.bytesPerLine(), picture.format()};
}

/// The bands of a picture of that size that hold a part of it.
QRect bandsAround(const QRect& part, QSize size) {
    constexpr auto rowsAtOnce = 256;
    const auto top = part.top() / rowsAtOnce * rowsAtOnce;
    const auto end = (part.bottom() / rowsAtOnce + 1) * rowsAtOnce;
    return {0, top, size.width(), end - top};
}

/// How large something is so many times smaller.
QSize reducedSize(QSize size, int factor) {
    const auto part = [factor](int length) { return std::max(1, (length + factor / 2) / factor); };
    return {part(size.width()), part(size.height())};
}

/// Those of a picture of that size that a part of its place is painted of. Whole rows, since a painter mixes
/// the same pixels in a row only if it begins where it did.
QRect rowsPainted(const QRect& part, const QRectF& place, QSize size) {
    constexpr auto mixed = 2; // neighbours, and what rounding adds
    const auto scale = size.height() / place.height();
    const auto top = static_cast<int>(std::floor((part.top() - place.top()) * scale)) - mixed;
    const auto end = static_cast<int>(std::ceil((part.bottom() + 1 - place.top()) * scale)) + mixed;
    return QRect(0, top, size.width(), end - top) & QRect({}, size);
}

/// The rows of a part in which something of it is outdated.
QRegion rowsWith(const QRegion& outdated, const QRegion& part) {
    const auto all = part.boundingRect();
    QRegion rows;
    for (const auto& rect : outdated& part)
        rows |= QRect(all.left(), rect.top(), all.width(), rect.height());
    return rows;
}

} // namespace

void LayerPainter::paint(const PaintList& list, const QRegion& damage, QImage& picture) {
    use(list);
    Painting(list, damage, picture, Qt::black, *this).paintAll();
    pictures_.paintingEnded();
}

/// What is not painted now may be on the screen all the same.
void LayerPainter::use(const PaintList& list) {
    for (const auto& item : list.items()) {
        if (item.inner == nullptr || item.extent.isEmpty())
            continue;
        static_cast<void>(pictures_.use(item.identity));
        use(*item.inner);
    }
}

const QImage& LayerPainter::pictureOf(const PaintItem& item, const QRegion& part) {
    auto& kept = compare(item);
    if (!kept.outdated.intersects(part))
        return pictures_.picture(item.identity);
    // What is within pictures is painted bit by bit as it comes to be seen, texts in bands of many rows.
    const auto seen = item.inner->hasPictures() ? part : bandsAround(part.boundingRect(), item.inner->size());
    const auto damage = kept.outdated & seen;
    kept.outdated -= damage;
    if (kept.picture.isNull())
        kept.picture = pictures_.make(item.inner->size());
    Painting(*item.inner, damage, kept.picture, Qt::transparent, *this).paintAll();
    return pictures_.picture(item.identity);
}

PictureRows LayerPainter::rowsOf(const PaintItem& item, const QRegion& part) {
    auto& kept = compare(item);
    const auto& inner = *item.inner;
    const auto isChanging = kept.lastChange == kept.lastUse && inner.hasPictures();
    const auto made =
        isChanging ? Painting::wholePixelsOnly(inner, rowsWith(kept.outdated, part)) : QRegion();
    const auto& picture = pictureOf(item, part - made);
    if (made.isEmpty())
        return PictureRows(picture);
    return {picture, inner.size(), made,
            Painting(inner, made, kept.picture, Qt::transparent, *this).putOff()};
}

const QImage& LayerPainter::smallerPictureOf(const PaintItem& item, int factor, const QRect& part) {
    auto& smaller = compare(item).smaller[factor];
    const auto whole = item.partPaintedSmaller();
    const auto size = reducedSize(whole.size(), factor);
    if (smaller.picture.size() != size) {
        smaller.picture = QImage(size, QImage::Format_ARGB32_Premultiplied);
        smaller.outdated = smaller.picture.rect();
    }
    const auto rows = rowsPainted(part, item.placeOfInner(whole), size);
    if (smaller.outdated.intersects(rows))
        paintSmaller(item, rows, smaller);
    return smaller.picture;
}

void LayerPainter::paintSmaller(const PaintItem& item, const QRect& rows, LayerPictures::Smaller& smaller) {
    const auto& list = *item.inner;
    const auto part = item.partPaintedSmaller();
    const auto size = smaller.picture.size();
    if (!list.hasPictures()) {
        smaller.outdated = {};
        smaller.picture = PixelComponents::reduced(partOf(pictureOf(item, part), part), size).toImage();
        return;
    }
    const auto damage = smaller.outdated & rows;
    smaller.outdated -= damage;
    // What has soft edges leaves something of what was there.
    PixelRects::fill(smaller.picture, damage, Qt::transparent);
    const auto reduced = list.reduced(list.items().size(), part, size);
    Painting(reduced, damage, smaller.picture, Qt::transparent, *this).paintAll();
}

/// Finds out what of a layer's picture is to be painted again once it is seen.
LayerPictures::Kept& LayerPainter::compare(const PaintItem& item) {
    auto& kept = pictures_.use(item.identity);
    if (kept.shown == item.inner)
        return kept;
    QRegion damage = QRect({}, item.inner->size());
    if (kept.shown != nullptr && kept.shown->size() == item.inner->size()) {
        damage = damageBetween(*kept.shown, *item.inner);
    } else {
        kept.picture = {}; // which is made once it is needed
        kept.outdated = {};
    }
    if (!damage.isEmpty()) {
        kept.lastChange = kept.lastUse;
        for (auto& [factor, smaller] : kept.smaller)
            smaller.outdated = smaller.picture.rect();
    }
    kept.outdated |= damage;
    kept.shown = item.inner;
    return kept;
}
