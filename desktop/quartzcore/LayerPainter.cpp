#include "LayerPainter.h"

#include "PaintDamage.h"
#include "Painting.h"
#include "PixelComponents.h"

#include <algorithm>
#include <climits>

namespace {

/// As long as the picture lives and is not painted.
QImage partOf(const QImage& picture, const QRect& part) {
    const auto* const begin = picture.constScanLine(part.top()) + part.left() * picture.depth() / CHAR_BIT;
    return {begin, part.width(), part.height(), picture.bytesPerLine(), picture.format()};
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
    // What is within pictures is painted bit by bit as it comes to be seen, but texts are not.
    const auto damage = item.inner->hasPictures() ? kept.outdated & part : kept.outdated;
    kept.outdated -= damage;
    Painting(*item.inner, damage, kept.picture, Qt::transparent, *this).paintAll();
    return pictures_.picture(item.identity);
}

const QImage& LayerPainter::smallerPictureOf(const PaintItem& item, int factor) {
    auto& smaller = compare(item).smaller[factor];
    if (smaller.isNull()) {
        const auto part = [factor](int size) { return std::max(1, (size + factor / 2) / factor); };
        const auto whole = item.partPaintedSmaller();
        smaller = smallerPicture(item, whole, {part(whole.width()), part(whole.height())});
    }
    return smaller;
}

QImage LayerPainter::smallerPicture(const PaintItem& item, const QRect& part, QSize size) {
    const auto& list = *item.inner;
    if (!list.hasPictures())
        return PixelComponents::reduced(partOf(pictureOf(item, part), part), size).toImage();
    QImage smaller(size, QImage::Format_ARGB32_Premultiplied);
    smaller.fill(Qt::transparent); // what has soft edges leaves something of what was there
    const QRegion all(smaller.rect());
    Painting(list.reduced(list.items().size(), part, size), all, smaller, Qt::transparent, *this).paintAll();
    return smaller;
}

/// Finds out what of a layer's picture is to be painted again once it is seen.
LayerPictures::Kept& LayerPainter::compare(const PaintItem& item) {
    auto& kept = pictures_.use(item.identity);
    if (kept.shown == item.inner)
        return kept;
    QRegion damage = QRect({}, item.inner->size());
    if (kept.shown != nullptr && kept.picture.size() == item.inner->size()) {
        damage = damageBetween(*kept.shown, *item.inner);
    } else {
        kept.picture = pictures_.make(item.inner->size());
        kept.outdated = {}; // of the picture before, which may have been larger
    }
    if (!damage.isEmpty())
        kept.smaller.clear();
    kept.outdated |= damage;
    kept.shown = item.inner;
    return kept;
}
