#include "LayerPainter.h"

#include "PaintDamage.h"
#include "Painting.h"

void LayerPainter::paint(const PaintList& list, const QRegion& damage, QImage& picture) {
    bringUpToDate(list);
    scratch_.makeRoom(list.size());
    Painting(list, damage, picture, Qt::black, {scratch_, shadows_, pictures_}).paintAll();
    pictures_.paintingEnded();
}

void LayerPainter::bringUpToDate(const PaintList& list) {
    for (const auto& item : list.items()) {
        if (item.inner != nullptr && !item.extent.isEmpty())
            bringUpToDate(item);
    }
}

void LayerPainter::bringUpToDate(const PaintItem& item) {
    bringUpToDate(*item.inner);
    auto& kept = pictures_.use(item.identity);
    QRegion damage = QRect({}, item.inner->size());
    if (kept.shown != nullptr && kept.picture.size() == item.inner->size())
        damage = damageBetween(*kept.shown, *item.inner);
    else
        kept.picture = QImage(item.inner->size(), QImage::Format_ARGB32_Premultiplied);
    if (!damage.isEmpty()) {
        scratch_.makeRoom(item.inner->size());
        Painting(*item.inner, damage, kept.picture, Qt::transparent, {scratch_, shadows_, pictures_})
            .paintAll();
        kept.smaller.clear();
    }
    kept.shown = item.inner;
}
