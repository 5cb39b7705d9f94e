#include "Painting.h"

#include "GaussianBlur.h"
#include "LayerDelegate.h"
#include "ScaledPicture.h"

#include <cmath>
#include <utility>

namespace {

/// How far beyond a mask its layer is painted, so that only the mask makes the edge; in pixels.
constexpr double beyondMask = 2;

QColor asColor(const ColorComponents& color) {
    return color.toQColor();
}

double pixelsPerPoint(const LayerLook& look) {
    return std::sqrt(std::abs(look.transform().determinant()));
}

/// Where a soft mask may leave less than the whole of a pixel.
QRegion softEdges(const PaintItem& item) {
    if (!item.look.isUpright())
        return {item.innerClip};
    const auto rect = item.look.pixelRect();
    const auto corner = item.look.cornerPixels() + 1;
    const auto insideOf = [&rect](double x, double y) {
        const auto inside = rect.adjusted(x, y, -x, -y);
        if (!inside.isValid())
            return QRect();
        return QRect(
            QPoint(static_cast<int>(std::ceil(inside.left())), static_cast<int>(std::ceil(inside.top()))),
            QPoint(static_cast<int>(std::floor(inside.right())) - 1,
                   static_cast<int>(std::floor(inside.bottom())) - 1));
    };
    return QRegion(item.innerClip) - insideOf(corner, 0) - insideOf(0, corner);
}

/// Replaces the pixels of a region by those of another picture of the same size.
void copy(const QImage& from, QImage& to, const QRegion& region) {
    QPainter painter(&to);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setClipRegion(region);
    painter.drawImage(0, 0, from);
}

void clear(QImage& image, const QRegion& region) {
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.setClipRegion(region);
    painter.fillRect(region.boundingRect(), Qt::transparent);
}

void paintPart(QPainter& painter, const QImage& image, const QRegion& region) {
    const auto rect = region.boundingRect();
    painter.drawImage(rect.topLeft(), image, rect);
}

/// A rectangle in parts that a processor has near it from one step to the next.
std::vector<QRect> strips(const QRect& rect) {
    constexpr auto height = 32;
    std::vector<QRect> parts;
    for (auto top = rect.top(); top <= rect.bottom(); top += height)
        parts.push_back(QRect(rect.left(), top, rect.width(), height) & rect);
    return parts;
}

/// The layer's edge, or beyond it where a mask makes the edge.
QPainterPath shapeOf(const PaintItem& item, double inset) {
    if (!item.hasSoftMask())
        return item.look.outline(inset);
    const auto beyond = beyondMask / pixelsPerPoint(item.look);
    const auto& bounds = item.look.bounds;
    QPainterPath path;
    path.addRect(QRectF(bounds.origin.x, bounds.origin.y, bounds.size.width, bounds.size.height)
                     .adjusted(-beyond, -beyond, beyond, beyond));
    return path;
}

} // namespace

Painting::Surface::Surface(QImage& picture, double groupOpacity)
    : image(picture),
      painter(&picture),
      opacity(groupOpacity) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
}

Painting::Painting(const PaintList& list, const QRegion& damage, QImage& picture, const Tools& tools)
    : items_(list.items()),
      damage_(damage),
      tools_(tools),
      picture_(picture),
      isCovered_(items_.size()) {}

void Painting::paintAll(const QColor& color) {
    findCovered();
    Surface surface(picture_, 1);
    surface.painter.setClipRegion(damage_);
    surface.painter.setCompositionMode(QPainter::CompositionMode_Source);
    surface.painter.fillRect(damage_.boundingRect(), color);
    surface.painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    surfaces_.push_back(&surface);
    paintItems(0, items_.size(), surface);
    surfaces_.pop_back();
}

void Painting::findCovered() {
    QRegion covered;
    for (auto index = items_.size(); index-- > 0;) {
        const auto& item = items_[index];
        isCovered_[index] = (damage_ & item.extent).subtracted(covered).isEmpty();
        if (isCovered_[index])
            continue;
        if (item.look.backdrop)
            covered -= item.body;
        covered |= item.opaque;
    }
}

void Painting::paintItems(std::size_t first, std::size_t end, Surface& surface) {
    for (auto index = first; index < end; index = items_[index].end) {
        if (damage_.intersects(items_[index].wholeExtent))
            paintItem(index, surface);
    }
}

void Painting::paintItem(std::size_t index, Surface& surface) {
    if (items_[index].isGroup())
        paintGroup(index, surface);
    else
        paintLayer(index, surface);
}

void Painting::paintGroup(std::size_t index, Surface& surface) {
    const auto& item = items_[index];
    const auto region = damage_ & item.wholeExtent;
    auto& image = tools_.scratch.take();
    clear(image, region);
    {
        Surface group(image, item.opacity);
        surfaces_.push_back(&group);
        paintLayer(index, group);
        surfaces_.pop_back();
    }
    auto& painter = surface.painter;
    painter.resetTransform();
    painter.setClipRegion(region);
    painter.setOpacity(item.opacity);
    paintPart(painter, image, region);
    painter.setOpacity(1);
    tools_.scratch.release();
}

void Painting::paintLayer(std::size_t index, Surface& surface) {
    const auto& item = items_[index];
    if (!isCovered_[index])
        paintShadow(item, surface);
    if (item.hasSoftMask())
        paintMasked(index, surface);
    else
        paintInside(index, surface);
}

void Painting::paintInside(std::size_t index, Surface& surface) {
    const auto& item = items_[index];
    if (!isCovered_[index]) {
        paintBackdrop(item, surface);
        paintBackground(item, surface);
        paintContents(item, surface);
        paintPicture(item, surface);
    }
    paintItems(index + 1, item.end, surface);
    paintBorder(item, surface);
}

void Painting::paintMasked(std::size_t index, Surface& surface) {
    const auto& item = items_[index];
    const auto edges = softEdges(item) & damage_;
    if (edges.isEmpty()) {
        paintInside(index, surface);
        return;
    }
    auto& saved = tools_.scratch.take();
    copy(surface.image, saved, edges);
    paintInside(index, surface);
    blendEdges(item, edges, saved, surface);
    tools_.scratch.release();
}

void Painting::blendEdges(const PaintItem& item, const QRegion& edges, QImage& saved, Surface& surface) {
    auto& mask = tools_.scratch.take();
    clear(mask, edges);
    {
        Surface shape(mask, 1);
        shape.painter.setClipRegion(edges);
        shape.painter.setTransform(item.look.transform());
        shape.painter.fillPath(item.look.outline(), Qt::black);
    }
    {
        QPainter outside(&saved);
        outside.setClipRegion(edges);
        outside.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        paintPart(outside, mask, edges);
    }
    auto& painter = surface.painter;
    painter.resetTransform();
    painter.setClipRegion(edges);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    paintPart(painter, mask, edges);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    paintPart(painter, saved, edges);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    tools_.scratch.release();
}

void Painting::paintShadow(const PaintItem& item, Surface& surface) {
    const auto& look = item.look;
    if (!look.castsShadow())
        return;
    const Shadow shadow{.radius = look.shadowRadius,
                        .offset = {look.shadowOffset.width, look.shadowOffset.height},
                        .opacity = look.shadowOpacity,
                        .color = asColor(look.shadowColor)};
    tools_.shadows.paint(readied(surface, item, item.extent), look.shadowShape(), shadow);
}

void Painting::paintBackdrop(const PaintItem& item, Surface& surface) {
    const auto& look = item.look;
    if (!look.backdrop || !damage_.intersects(item.body))
        return;
    const auto seen = blurredBackdrop(behind(item.body), look.backdrop->blurRadius * pixelsPerPoint(look),
                                      look.backdrop->saturation);
    auto& painter = readied(surface, item, item.body & item.innerClip);
    const auto shape = look.transform().map(shapeOf(item, 0));
    painter.resetTransform();
    painter.setBrushOrigin(item.body.topLeft());
    painter.fillPath(shape, QBrush(seen));
    painter.setBrushOrigin(0, 0);
}

QImage Painting::behind(const QRect& rect) const {
    QImage image(rect.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    double opacity = 1;
    for (const auto* const surface : surfaces_) {
        opacity *= surface->opacity;
        painter.setOpacity(opacity);
        painter.drawImage(QPoint(), surface->image, rect);
    }
    return image;
}

void Painting::paintBackground(const PaintItem& item, Surface& surface) {
    const auto& look = item.look;
    if (look.background.alpha == 0)
        return;
    const auto isEdgeHidden = look.borderColor.alpha == 1; // then no background shines through its edge
    const auto shape = shapeOf(item, isEdgeHidden ? look.borderWidth / 2 : 0);
    readied(surface, item, item.body & item.innerClip).fillPath(shape, asColor(look.background));
}

void Painting::paintContents(const PaintItem& item, Surface& surface) {
    const auto reach = item.body & item.innerClip;
    if (item.delegate == nullptr || !damage_.intersects(reach))
        return;
    auto& painter = readied(surface, item, reach);
    painter.save();
    item.delegate->drawLayer(painter, item.look.bounds, item.look.traits);
    painter.restore();
}

void Painting::paintPicture(const PaintItem& item, Surface& surface) {
    if (item.inner == nullptr)
        return;
    const auto region = damage_ & item.body;
    auto& painter = surface.painter;
    painter.resetTransform();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    paintPicture(item, region & item.opaque, painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    paintPicture(item, region - item.opaque, painter);
}

void Painting::paintPicture(const PaintItem& item, const QRegion& region, QPainter& painter) const {
    const auto& image = tools_.pictures.picture(item.identity);
    painter.setClipRegion(region);
    if (!item.isInnerScaled()) {
        painter.drawImage(item.cornerOfInner(), image);
        return;
    }
    const ScaledPicture scaled(image, item.placeOfInner());
    for (const auto& rect : region) {
        for (const auto& strip : strips(rect))
            painter.drawImage(strip.topLeft(), scaled.part(strip));
    }
}

void Painting::paintBorder(const PaintItem& item, Surface& surface) {
    const auto& look = item.look;
    if (look.borderWidth == 0 || look.borderColor.alpha == 0)
        return;
    auto shape = shapeOf(item, 0);
    shape.addPath(look.outline(look.borderWidth));
    readied(surface, item, item.body & item.innerClip).fillPath(shape, asColor(look.borderColor));
}

QPainter& Painting::readied(Surface& surface, const PaintItem& item, const QRegion& clip) const {
    auto& painter = surface.painter;
    painter.resetTransform();
    painter.setClipRegion(damage_ & clip);
    painter.setTransform(item.look.transform());
    return painter;
}
