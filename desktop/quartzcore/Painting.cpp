#include "Painting.h"

#include "LayerDelegate.h"
#include "LayerPainter.h"
#include "PainterBands.h"
#include "PixelRects.h"
#include "PixelWork.h"
#include "ScaledPicture.h"
#include "ShadowRenderer.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <memory>

namespace {

/// How far beyond a mask its layer is painted, so that only the mask makes the edge; in pixels.
constexpr double beyondMask = 2;

QColor asColor(const ColorComponents& color) {
    return color.toQColor();
}

double pixelsPerPoint(const LayerLook& look) {
    return std::sqrt(std::abs(look.transform().determinant()));
}

/// How many times smaller what is blurred may be painted.
int timesSmaller(double sigma) {
    constexpr double leastSigma = 6; ///< of the smaller picture; what is finer could be told
    return static_cast<int>(std::bit_floor(std::max(1U, static_cast<unsigned>(sigma / leastSigma))));
}

/// How many times smaller a picture is taken to be painted at a place.
int timesSmaller(const PaintItem& item) {
    const auto times = item.inner->size().height() / std::max(1.0, item.placeOfInner().height());
    return 1 << static_cast<int>(std::lround(std::log2(std::max(1.0, times))));
}

/// Those of a layer's picture that a region is painted of where it is painted larger or smaller.
QRegion pixelsOfPicture(const PaintItem& item, const QRegion& region) {
    constexpr auto mixed = 2; // neighbours, and what rounding adds
    const auto place = item.placeOfInner();
    const auto& size = item.inner->size();
    const auto toPicture = QTransform::fromScale(size.width() / place.width(), size.height() / place.height())
                               .translate(-place.left(), -place.top());
    QRegion pixels;
    for (const auto& rect : region)
        pixels |= toPicture.mapRect(QRectF(rect)).toAlignedRect().adjusted(-mixed, -mixed, mixed, mixed);
    return pixels & QRect({}, size);
}

/// Where a soft mask may leave less than the whole of a pixel.
QRegion softEdges(const PaintItem& item) {
    if (!item.look.isUpright())
        return {item.innerClip};
    const auto bend = item.look.cornerPixels();
    const auto corner = bend > 0 ? bend + 1 : 0;
    return QRegion(item.innerClip) - item.look.wholePixelsWithin(corner, 0) -
           item.look.wholePixelsWithin(0, corner);
}

/// The parts of a region that are painted one by one. They depend on nothing but all of it, since where a
/// picture begins decides about the last digits of its pixels.
std::vector<QRect> partsOf(const QRegion& region) {
    return PainterBands::of(region);
}

/// A part of a picture in which a shape is filled.
QImage partOfShape(const QPainterPath& shape, const QColor& color, const QRect& part) {
    QImage image(part.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-part.topLeft());
    painter.fillPath(shape, color);
    return image;
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

/// The pixels between the corners of a background that are filled wholly.
QRect insideOf(const LayerLook& look, double inset) {
    if (!look.isUpright())
        return {};
    const auto edge = inset * pixelsPerPoint(look);
    return look.wholePixelsWithin(edge, edge + look.cornerPixels());
}

/// Whether an item is a picture that is painted as it is kept, so that it can be painted faded.
bool isPictureOnly(const PaintItem& item) {
    return item.inner != nullptr && !item.hasSoftMask() && !item.isInnerScaled();
}

/// What is in a part of a surface by then. \returns the picture that it will be in
std::shared_ptr<QImage> save(const QRect& part, PaintSurface& surface) {
    auto saved = std::make_shared<QImage>(part.size(), QImage::Format_ARGB32_Premultiplied);
    surface.put(part, [saved, part](const QImage& target, const QRect& pixels, QPoint corner) {
        PixelRects::copy(target, *saved, pixels.translated(-part.topLeft()), corner - part.topLeft());
    });
    return saved;
}

/// Where an item, with all within it, is painted by more than work on whole pixels; may be empty.
QRect needsPainter(const PaintItem& item) {
    const auto& look = item.look;
    if (item.isGroup() && !isPictureOnly(item) && !item.isBackgroundOnly)
        return item.wholeExtent;
    const auto isPlainPicture = item.inner == nullptr || !item.isInnerScaled();
    const auto isPlain = isPlainPicture && item.delegate == nullptr && !item.hasSoftMask() &&
                         !look.backdrop && !look.castsShadow() &&
                         (look.borderWidth == 0 || look.borderColor.alpha == 0);
    return isPlain ? QRect() : item.extent;
}

} // namespace

Painting::Painting(const PaintList& list, const QRegion& damage, QImage& picture, const QColor& color,
                   LayerPainter& painter)
    : list_(list),
      items_(list.items()),
      damage_(damage),
      picture_(picture),
      color_(color),
      painter_(painter),
      seen_(items_.size()),
      covered_(items_.size() + 1),
      isAnySeen_(items_.size()) {}

void Painting::paintAll() {
    PaintSurface surface(picture_);
    paintInto(surface);
    surface.finish();
}

PixelWork Painting::putOff() {
    PaintSurface surface(picture_);
    paintInto(surface);
    return surface.takeWork();
}

QRegion Painting::wholePixelsOnly(const PaintList& list, QRegion rows) {
    const auto all = rows.boundingRect();
    for (const auto& item : list.items()) {
        if (const auto reach = needsPainter(item); !reach.isEmpty())
            rows -= QRect(all.left(), reach.top(), all.width(), reach.height());
    }
    return rows;
}

void Painting::paintInto(PaintSurface& surface) {
    findSeen();
    surface.fill(damage_ - covered_.front(), color_);
    paintItems(0, items_.size(), surface);
}

void Painting::findSeen() {
    const auto isOpaque = color_.alphaF() == 1;
    for (auto index = items_.size(); index-- > 0;) {
        const auto& item = items_[index];
        covered_[index] = covered_[index + 1];
        seen_[index] = (damage_ & item.extent) - covered_[index];
        if (!seen_[index].isEmpty())
            covered_[index] |= item.look.backdrop && isOpaque ? item.filled : item.opaque;
    }
    for (auto index = items_.size(); index-- > 0;) {
        isAnySeen_[index] = !seen_[index].isEmpty();
        for (auto within = index + 1; within < items_[index].end && !isAnySeen_[index];
             within = items_[within].end)
            isAnySeen_[index] = isAnySeen_[within];
    }
}

QRegion Painting::seenWithin(const PaintItem& item, const QRegion& part) const {
    return (damage_ & part) - covered_[item.end];
}

void Painting::paintItems(std::size_t first, std::size_t end, PaintSurface& surface) {
    for (auto index = first; index < end; index = items_[index].end) {
        if (isAnySeen_[index])
            paintItem(index, surface);
    }
}

void Painting::paintItem(std::size_t index, PaintSurface& surface) {
    if (items_[index].isGroup())
        paintGroup(index, surface);
    else
        paintLayer(index, surface);
}

void Painting::paintGroup(std::size_t index, PaintSurface& surface) {
    const auto& item = items_[index];
    if (item.isBackgroundOnly) {
        paintBackground(index, surface, item.opacity);
        return;
    }
    if (isPictureOnly(item)) {
        paintPicture(index, surface, item.opacity);
        return;
    }
    const auto region = seenWithin(item, item.wholeExtent);
    auto& image = painter_.scratch().take(picture_.size());
    {
        PaintSurface group(image);
        group.fill(region, Qt::transparent);
        paintLayer(index, group);
        group.finish();
    }
    PixelRects::paintOver(surface.image(), region, image, {}, item.opacity);
    painter_.scratch().release();
}

void Painting::paintLayer(std::size_t index, PaintSurface& surface) {
    const auto& item = items_[index];
    if (!seen_[index].isEmpty())
        paintShadow(item, surface);
    if (item.hasSoftMask())
        paintMasked(index, surface);
    else
        paintInside(index, surface);
}

void Painting::paintInside(std::size_t index, PaintSurface& surface) {
    const auto& item = items_[index];
    if (!seen_[index].isEmpty()) {
        if (const auto& backdrop = item.look.backdrop)
            paintBackdrop(index, *backdrop, surface);
        else
            paintBackground(index, surface);
        paintContents(item, surface);
        paintPicture(index, surface);
    }
    paintItems(index + 1, item.end, surface);
    paintBorder(item, surface);
}

void Painting::paintMasked(std::size_t index, PaintSurface& surface) {
    const auto& item = items_[index];
    const auto edges = seenWithin(item, softEdges(item));
    if (edges.isEmpty()) {
        paintInside(index, surface);
        return;
    }
    std::vector<QRect> parts = partsOf(softEdges(item));
    std::erase_if(parts, [&edges](const QRect& part) { return !edges.intersects(part); });
    std::vector<std::shared_ptr<QImage>> saved;
    saved.reserve(parts.size());
    for (const auto& part : parts)
        saved.push_back(save(part, surface));
    paintInside(index, surface);
    const auto outline = item.look.transform().map(item.look.outline());
    for (std::size_t place = 0; place < parts.size(); ++place) {
        const auto corner = parts[place].topLeft();
        const auto mask = partOfShape(outline, Qt::black, parts[place]);
        surface.put(edges & parts[place], [before = saved[place], mask,
                                           corner](QImage& target, const QRect& pixels, QPoint targetCorner) {
            PixelRects::bringBack(target, pixels.translated(-targetCorner), *before, mask,
                                  corner - targetCorner);
        });
    }
}

void Painting::paintShadow(const PaintItem& item, PaintSurface& surface) {
    const auto& look = item.look;
    if (!look.castsShadow())
        return;
    const Shadow shadow{.radius = look.shadowRadius,
                        .offset = {look.shadowOffset.width, look.shadowOffset.height},
                        .opacity = look.shadowOpacity,
                        .color = asColor(look.shadowColor)};
    painter_.shadows().paint(readied(surface, item, item.extent), look.shadowShape(), shadow);
}

void Painting::paintBackdrop(std::size_t index, const Backdrop& backdrop, PaintSurface& surface) {
    const auto& item = items_[index];
    if (!damage_.intersects(item.body))
        return;
    const auto seen = backdropOf(index, backdrop);
    const auto region = seen_[index] & item.body & item.innerClip;
    const auto inside = seen.isOpaque() ? insideOf(item.look, 0) & item.body : QRect();
    for (const auto& rect : region& inside)
        seen.copyTo(surface.image(), rect.translated(-item.body.topLeft()), item.body.topLeft());
    const auto shape = item.look.transform().map(shapeOf(item, 0));
    auto& painter = surface.painter();
    painter.resetTransform();
    for (const auto& part : partsOf(region - inside)) {
        QImage image(part.size(), QImage::Format_ARGB32_Premultiplied);
        const auto corner = item.body.topLeft() - part.topLeft();
        seen.copyTo(image, image.rect().translated(-corner), corner);
        painter.setClipRect(part);
        painter.setBrushOrigin(part.topLeft());
        painter.fillPath(shape, QBrush(image));
    }
    painter.setBrushOrigin(0, 0);
}

/// What lies behind is painted smaller, as finely as is needed for its blur.
BlurredBackdrop Painting::backdropOf(std::size_t index, const Backdrop& backdrop) const {
    const auto& item = items_[index];
    const auto sigma = backdrop.blurRadius * pixelsPerPoint(item.look);
    const auto& full = item.body.size();
    const auto factor = timesSmaller(sigma);
    const QSize size(std::max(1, full.width() / factor), std::max(1, full.height() / factor));
    const auto list = list_.reduced(index, item.body, size);
    QImage behind(size, QImage::Format_ARGB32_Premultiplied);
    behind.fill(color_); // what has soft edges leaves something of what was there
    const QRegion all(behind.rect());
    Painting(list, all, behind, color_, painter_).paintAll();
    const auto smaller = std::sqrt(static_cast<double>(size.width()) * size.height() /
                                   (static_cast<double>(full.width()) * full.height()));
    return {behind, sigma * smaller, backdrop.saturation, asColor(item.look.background), full};
}

void Painting::paintBackground(std::size_t index, PaintSurface& surface, double opacity) {
    const auto& item = items_[index];
    const auto& look = item.look;
    auto color = look.background;
    color.alpha *= opacity;
    if (color.alpha == 0)
        return;
    if (look.fillsWholePixels()) {
        const auto region = seen_[index] & item.innerClip & look.wholePixels();
        surface.paintOver(region, asColor(color));
        return;
    }
    const auto isEdgeHidden = look.borderColor.alpha == 1; // then no background shines through its edge
    const auto inset = isEdgeHidden ? look.borderWidth / 2 : 0;
    const auto shape = look.transform().map(shapeOf(item, inset));
    const auto all = QRegion(item.body & item.innerClip);
    const auto region = seen_[index] & all;
    const auto inside = insideOf(look, inset);
    surface.paintOver(region & inside, asColor(color));
    for (const auto& part : partsOf(all - inside)) {
        if (!region.intersects(part))
            continue;
        surface.put(region & part, [edge = partOfShape(shape, asColor(color), part), corner = part.topLeft()](
                                       QImage& target, const QRect& pixels, QPoint targetCorner) {
            PixelRects::paintOver(target, pixels.translated(-targetCorner), edge, corner - targetCorner, 1);
        });
    }
}

void Painting::paintContents(const PaintItem& item, PaintSurface& surface) {
    const auto reach = item.body & item.innerClip;
    if (item.delegate == nullptr || !damage_.intersects(reach))
        return;
    auto& painter = readied(surface, item, reach);
    painter.save();
    item.delegate->drawLayer(painter, item.look.bounds, item.look.traits);
    painter.restore();
}

void Painting::paintPicture(std::size_t index, PaintSurface& surface, double opacity) {
    const auto& item = items_[index];
    const auto region = seen_[index] & item.body;
    if (item.inner == nullptr || region.isEmpty())
        return;
    if (item.isInnerScaled()) {
        paintScaledPicture(item, region, surface);
        return;
    }
    const auto corner = item.cornerOfInner();
    const auto& image = painter_.pictureOf(item, region.translated(-corner));
    surface.copy(image, region & item.opaque, corner);
    surface.paintOver(region - item.opaque, image, corner, opacity);
}

void Painting::paintScaledPicture(const PaintItem& item, const QRegion& region, PaintSurface& surface) const {
    const auto times = timesSmaller(item);
    if (times == 1) {
        putScaledPicture(item, region, surface);
        return;
    }
    auto& painter = surface.painter();
    painter.resetTransform();
    painter.setClipRegion(region);
    PainterBands::draw(painter, item.placeOfInner(item.partPaintedSmaller()),
                       painter_.smallerPictureOf(item, times, region.boundingRect()));
}

void Painting::putScaledPicture(const PaintItem& item, const QRegion& region, PaintSurface& surface) const {
    const auto rows = painter_.rowsOf(item, pixelsOfPicture(item, region));
    const auto scaledOnce = [&] { return std::make_shared<ScaledPicture>(rows, item.placeOfInner()); };
    for (const auto& rect : region& item.opaque) {
        surface.put(rect, [scaled = scaledOnce()](QImage& target, const QRect& pixels, QPoint corner) {
            scaled->copyTo(target, pixels, corner);
        });
    }
    for (const auto& rect : region - item.opaque) {
        surface.put(rect, [scaled = scaledOnce()](QImage& target, const QRect& pixels, QPoint corner) {
            QImage part(pixels.size(), QImage::Format_ARGB32_Premultiplied);
            scaled->copyTo(part, pixels, pixels.topLeft());
            PixelRects::paintOver(target, pixels.translated(-corner), part, pixels.topLeft() - corner, 1);
        });
    }
}

void Painting::paintBorder(const PaintItem& item, PaintSurface& surface) {
    const auto& look = item.look;
    if (look.borderWidth == 0 || look.borderColor.alpha == 0)
        return;
    auto shape = shapeOf(item, 0);
    shape.addPath(look.outline(look.borderWidth));
    readied(surface, item, item.body & item.innerClip).fillPath(shape, asColor(look.borderColor));
}

QPainter& Painting::readied(PaintSurface& surface, const PaintItem& item, const QRegion& clip) const {
    auto& painter = surface.painter();
    painter.resetTransform();
    painter.setClipRegion(damage_ & clip);
    painter.setTransform(item.look.transform());
    return painter;
}
