#include "PaintList.h"

#include "LayerDelegate.h"
#include "QuartzCore/CALayer.h"
#include "RectGeometry.h"

#include <algorithm>
#include <cmath>

namespace {

/// Texts reach a little over the edges of what shows them, in points.
constexpr double contentsOverflow = 2;

/// What smooth edges add to an extent, in pixels.
constexpr int edgeMargin = 1;

/// A blur's reach that can be seen, in standard deviations; and what rounding it to pixels adds.
constexpr double shadowReach = 3;
constexpr double shadowMargin = 3;

double pixelsPerPoint(const AffineTransform& map) {
    return std::sqrt(std::abs(map.a * map.d - map.b * map.c));
}

/// \pre not too far away for whole numbers
QRect alignedOutwards(const QRectF& rect, int margin) {
    constexpr double far = 1e6;
    const auto limited = rect.intersected(QRectF(-far, -far, 2 * far, 2 * far));
    return limited.toAlignedRect().adjusted(-margin, -margin, margin, margin);
}

QRect extentOf(const LayerLook& look, const CGRect& rect, double overflow) {
    const auto pixels =
        look.toPixels(UIEdgeInsetsInsetRect(rect, {-overflow, -overflow, -overflow, -overflow}));
    return alignedOutwards({pixels.origin.x, pixels.origin.y, pixels.size.width, pixels.size.height},
                           edgeMargin);
}

/// Of the layer itself, without its shadow.
QRect bodyExtent(const LayerLook& look, const LayerDelegate* delegate) {
    const auto body = extentOf(look, look.bounds, 0);
    if (delegate == nullptr)
        return body;
    return body | extentOf(look, delegate->contentsRect(look.bounds), contentsOverflow);
}

QRect shadowExtent(const LayerLook& look) {
    if (!look.castsShadow())
        return {};
    const auto shape = look.shadowPath ? look.shadowPath->boundingRect()
                                       : QRectF(look.bounds.origin.x, look.bounds.origin.y,
                                                look.bounds.size.width, look.bounds.size.height);
    const auto cast = shape.translated(look.shadowOffset.width, look.shadowOffset.height);
    const auto reach = shadowReach * look.shadowRadius * pixelsPerPoint(look.toPixels) + shadowMargin;
    return alignedOutwards(look.transform().mapRect(cast).adjusted(-reach, -reach, reach, reach), edgeMargin);
}

/// What a layer that masks leaves of the picture.
QRect maskedClip(const LayerLook& look) {
    return look.fillsWholePixels() ? look.wholePixels() : alignedOutwards(look.pixelRect(), 0);
}

/// Larger pictures than these are not kept; pixels.
constexpr double largestPicture = 16e6;

/// Within these a picture that is painted larger or smaller looks well.
constexpr double leastScaling = 0.5;
constexpr double greatestScaling = 2;

/// How many pixels at the edge of what is opaque may be mixed with what is not, where a picture is scaled.
constexpr int mixedEdge = 4;

/// What a picture's layers are cut off at, which is farther than any that is kept.
constexpr QRect everywhere(-16384, -16384, 32768, 32768);

/// What is kept of a layer's look where its picture is painted: the place, and the edge of what masks.
LayerLook lookOfPicture(const LayerLook& look) {
    LayerLook kept;
    kept.toPixels = look.toPixels;
    kept.bounds = look.bounds;
    kept.background.alpha = 0; // which is in the picture
    kept.masksToBounds = look.masksToBounds;
    if (!look.masksToBounds)
        return kept;
    kept.cornerRadius = look.cornerRadius;
    kept.continuousCorners = look.continuousCorners;
    kept.roundTop = look.roundTop;
    kept.roundBottom = look.roundBottom;
    return kept;
}

bool isWithin(double value, double least, double greatest) {
    return value >= least && value <= greatest;
}

/// Whether a layer's look is one that a picture of it can be painted with.
bool suitsPicture(const LayerLook& look, double scale) {
    const auto& map = look.toPixels;
    const auto hasRoundedBorder = look.masksToBounds && look.borderWidth > 0 && look.cornerRadius > 0;
    return look.isUpright() && !hasRoundedBorder && isWithin(map.a / scale, leastScaling, greatestScaling) &&
           isWithin(map.d / scale, leastScaling, greatestScaling);
}

bool isMoreThanBackground(const CALayerPeer& layer) {
    return !layer.sublayers().empty() || (layer.delegate != nullptr && layer.delegate->hasContents());
}

/// Has a picture at whole pixels, so that nothing but that tells it from its place.
void snap(LayerLook& look, double scale) {
    auto& map = look.toPixels;
    const auto rect = look.pixelRect();
    if (map.a != scale || map.d != scale) {
        const auto whole = QRectF(rect.topLeft().toPoint(), rect.bottomRight().toPoint());
        map.a *= whole.width() / rect.width();
        map.d *= whole.height() / rect.height();
        map.tx = whole.left() - map.a * look.bounds.origin.x;
        map.ty = whole.top() - map.d * look.bounds.origin.y;
        return;
    }
    map.tx += std::round(rect.left()) - rect.left();
    map.ty += std::round(rect.top()) - rect.top();
}

QRect roundedInwards(const QRectF& rect) {
    return {QPoint(static_cast<int>(std::ceil(rect.left())), static_cast<int>(std::ceil(rect.top()))),
            QPoint(static_cast<int>(std::floor(rect.right())) - 1,
                   static_cast<int>(std::floor(rect.bottom())) - 1)};
}

/// Where a layer whose bounds are filled lets nothing through; pixels.
QRect filledRect(const LayerLook& look) {
    if (!look.isUpright() || look.borderWidth > 0)
        return {};
    const auto bend = look.cornerPixels();
    const auto rect = look.wholePixelsWithin(0, bend > 0 ? bend + 1 : 0);
    return rect.isValid() ? rect : QRect();
}

/// With another beside it, above or below, if that is a rectangle again; the first if not.
QRect joined(const QRect& rect, const QRect& other) {
    const auto isAsHigh = other.top() <= rect.top() && other.bottom() >= rect.bottom();
    if (isAsHigh && other.left() <= rect.right() + 1 && other.right() >= rect.left() - 1)
        return {QPoint(std::min(rect.left(), other.left()), rect.top()),
                QPoint(std::max(rect.right(), other.right()), rect.bottom())};
    const auto isAsWide = other.left() <= rect.left() && other.right() >= rect.right();
    if (isAsWide && other.top() <= rect.bottom() + 1 && other.bottom() >= rect.top() - 1)
        return {QPoint(rect.left(), std::min(rect.top(), other.top())),
                QPoint(rect.right(), std::max(rect.bottom(), other.bottom()))};
    return rect;
}

bool paintsBackgroundOnly(const PaintItem& item) {
    const auto& look = item.look;
    return item.delegate == nullptr && item.inner == nullptr && !look.backdrop && !look.castsShadow() &&
           !item.hasSoftMask() && (look.borderWidth == 0 || look.borderColor.alpha == 0);
}

/// Where the picture of a layer lets nothing through.
QRect opaqueOfPicture(const PaintItem& item) {
    const auto inside = item.inner->opaque();
    const auto unmasked = item.hasSoftMask() ? item.filled : item.fullView;
    if (inside.isEmpty())
        return {};
    if (!item.isInnerScaled())
        return inside.translated(item.cornerOfInner()) & unmasked;
    const auto place = item.placeOfInner();
    const auto toPlace =
        QTransform::fromTranslate(place.left(), place.top())
            .scale(place.width() / item.inner->size().width(), place.height() / item.inner->size().height());
    const auto seen = roundedInwards(toPlace.mapRect(QRectF(inside)));
    return seen.adjusted(mixedEdge, mixedEdge, -mixedEdge, -mixedEdge) & unmasked;
}

} // namespace

PaintList::PaintList(const std::vector<const CALayer*>& roots, CGSize size, double scale)
    : size_(QSizeF(size.width * scale, size.height * scale).toSize()),
      scale_(scale) {
    for (const auto* const root : roots)
        add(*root, {.toPixels = AffineTransform::scale(scale),
                    .clip = QRect({}, size_),
                    .fullView = QRect({}, size_)});
}

PaintList::PaintList(const CALayer& layer, const LayerLook& look, double scale) : scale_(scale) {
    auto alone = look;
    alone.toPixels = AffineTransform::scale(scale).after(
        AffineTransform::translation(-look.bounds.origin.x, -look.bounds.origin.y));
    alone.cornerRadius =
        look.masksToBounds ? 0 : look.cornerRadius; // the mask is where the picture is painted
    addItem(layer, alone, 1, {.toPixels = {}, .clip = everywhere, .fullView = everywhere}, false);
    const auto extent = items_.front().wholeExtent;
    moveBy(-extent.topLeft());
    size_ = extent.size();
}

QRect PaintList::opaque() const {
    QRect largest;
    const auto area = [](const QRect& rect) { return rect.width() * rect.height(); };
    for (const auto& item : items_) {
        if (area(item.opaque) > area(largest))
            largest = item.opaque;
    }
    for (const auto& item : items_)
        largest = joined(largest, item.opaque);
    return largest & QRect({}, size_);
}

bool PaintList::hasPictures() const {
    return std::ranges::any_of(items_, [](const auto& item) { return item.inner != nullptr; });
}

PaintList PaintList::reduced(std::size_t count, const QRect& part, QSize size) const {
    PaintList list;
    list.size_ = size;
    list.scale_ = scale_ * size.width() / part.width();
    const AffineTransform toSize{.a = static_cast<double>(size.width()) / part.width(),
                                 .d = static_cast<double>(size.height()) / part.height()};
    const auto toPart = toSize.after(AffineTransform::translation(-part.x(), -part.y()));
    const auto whole = QRect({}, size);
    std::vector<std::size_t> around;
    std::vector<std::size_t> ends;
    const auto leave = [&](std::size_t place) {
        for (; !around.empty() && ends.back() <= place; around.pop_back(), ends.pop_back())
            list.items_[around.back()].end = list.items_.size();
    };
    for (std::size_t place = 0; place < count; ++place) {
        leave(place);
        const auto& original = items_[place];
        if (!original.wholeExtent.intersects(part)) {
            place = original.end - 1;
            continue;
        }
        const auto surroundings = around.empty()
                                      ? Surroundings{.toPixels = {}, .clip = whole, .fullView = whole}
                                      : within(list.items_[around.back()]);
        around.push_back(list.items_.size());
        ends.push_back(std::min(original.end, count));
        auto& item = list.items_.emplace_back(original);
        item.look.toPixels = toPart.after(item.look.toPixels);
        PaintList::place(item, surroundings);
        for (const auto outer : around)
            list.items_[outer].wholeExtent |= item.extent;
    }
    leave(count);
    return list;
}

bool PaintList::showsWhatIsBehind() const {
    QRegion hidden; // by the picture itself, but for the little that is seen at round corners
    for (const auto& item : items_) {
        if (item.look.backdrop && !QRegion(item.body).subtracted(hidden).isEmpty())
            return true;
        const auto isFilled = item.look.background.alpha == 1 && item.inner == nullptr;
        if (isFilled && item.isInFullView() && item.look.isUpright())
            hidden |= alignedOutwards(item.look.pixelRect(), edgeMargin) & item.innerClip;
        hidden |= item.opaque;
    }
    return false;
}

void PaintList::moveBy(QPoint distance) {
    for (auto& item : items_) {
        item.look.toPixels.tx += distance.x();
        item.look.toPixels.ty += distance.y();
        for (auto* const rect : {&item.clip, &item.innerClip, &item.body, &item.extent, &item.wholeExtent,
                                 &item.fullView, &item.filled, &item.opaque})
            rect->translate(distance);
    }
}

void PaintList::add(const CALayer& layer, const Surroundings& around) {
    const auto& peer = layer.peer();
    isAnimating_ = isAnimating_ || peer.isAnimating();
    const auto opacity = std::min(1.0, peer.shownValue(LayerProperty::Opacity)[0]);
    const auto toPixels = around.toPixels.after(peer.shownToSuperlayer());
    if (peer.hidden || opacity <= 0 || pixelsPerPoint(toPixels) == 0)
        return;
    const auto look = LayerLook::of(peer, toPixels);
    const auto fades = around.fades || opacity != peer.number(LayerProperty::Opacity);
    const auto keepsPicture = peer.keepsPicture || (fades && isMoreThanBackground(peer));
    if (!keepsPicture || !addPicture(layer, look, opacity, around))
        addItem(layer, look, opacity, around, fades);
}

void PaintList::addItem(const CALayer& layer, const LayerLook& look, double opacity,
                        const Surroundings& around, bool fades) {
    const auto& peer = layer.peer();
    const auto index = items_.size();
    auto& item = items_.emplace_back();
    item.look = look;
    item.opacity = opacity;
    item.identity = peer.identity();
    item.enclosing = around.enclosing;
    item.delegate = peer.delegate != nullptr && peer.delegate->hasContents() ? peer.delegate : nullptr;
    place(item, around);
    addSublayers(layer, index, fades);
    auto& added = items_[index];
    added.end = items_.size();
    added.isBackgroundOnly = added.end == index + 1 && paintsBackgroundOnly(added);
}

bool PaintList::addPicture(const CALayer& layer, const LayerLook& look, double opacity,
                           const Surroundings& around) {
    if (!suitsPicture(look, scale_))
        return false;
    std::shared_ptr<const PaintList> inner(new PaintList(layer, look, scale_));
    const auto size = inner->size();
    if (static_cast<double>(size.width()) * size.height() > largestPicture || inner->showsWhatIsBehind())
        return false;
    isAnimating_ = isAnimating_ || inner->isAnimating();
    auto& item = items_.emplace_back();
    item.look = lookOfPicture(look);
    snap(item.look, scale_);
    item.opacity = opacity;
    item.identity = layer.peer().identity();
    item.enclosing = around.enclosing;
    item.end = items_.size();
    item.inner = std::move(inner);
    const auto& map = item.inner->items().front().look.toPixels;
    const auto& origin = look.bounds.origin;
    item.innerPlace = -QPointF(map.tx + map.a * origin.x, map.ty + map.d * origin.y).toPoint();
    place(item, around);
    return true;
}

void PaintList::place(PaintItem& item, const Surroundings& around) {
    const auto& look = item.look;
    item.clip = around.clip;
    item.innerClip = look.masksToBounds ? item.clip & maskedClip(look) : item.clip;
    item.fullView = item.isGroup() ? QRect() : around.fullView & item.innerClip;
    item.filled = filledRect(look) & item.fullView;
    if (item.inner != nullptr) {
        item.body = alignedOutwards(item.placeOfInner(), 0) & item.innerClip;
        item.extent = item.body;
        item.opaque = opaqueOfPicture(item);
    } else {
        item.body = bodyExtent(look, item.delegate) & item.clip;
        item.extent = item.body | (shadowExtent(look) & item.clip);
        item.opaque = look.background.alpha == 1 ? item.filled : QRect();
    }
    item.wholeExtent = item.extent;
}

PaintList::Surroundings PaintList::within(const PaintItem& item) {
    const auto isApart = item.isGroup() || item.hasSoftMask();
    return {.toPixels = item.look.toPixels,
            .clip = item.innerClip,
            .fullView = item.hasSoftMask() ? item.filled : item.fullView,
            .enclosing = isApart ? item.identity : item.enclosing};
}

void PaintList::addSublayers(const CALayer& layer, std::size_t index, bool fades) {
    auto around = within(items_[index]);
    around.fades = fades;
    for (const auto& sublayer : layer.peer().sublayers()) {
        const auto first = items_.size();
        add(*sublayer, around);
        if (first < items_.size())
            items_[index].wholeExtent |= items_[first].wholeExtent;
    }
}
