#include "PaintList.h"

#include "LayerDelegate.h"
#include "QuartzCore/CALayer.h"

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
    const auto rect = look.pixelRect();
    if (!look.fillsWholePixels())
        return alignedOutwards(rect, 0);
    return {rect.topLeft().toPoint(), rect.bottomRight().toPoint() - QPoint(1, 1)};
}

} // namespace

PaintList::PaintList(const std::vector<const CALayer*>& roots, CGSize size, double scale)
    : size_(QSizeF(size.width * scale, size.height * scale).toSize()) {
    for (const auto* const root : roots)
        add(*root, {.toPixels = AffineTransform::scale(scale), .clip = QRect({}, size_)});
}

void PaintList::add(const CALayer& layer, const Surroundings& around) {
    const auto& peer = layer.peer();
    isAnimating_ = isAnimating_ || peer.isAnimating();
    const auto opacity = std::min(1.0, peer.shownValue(LayerProperty::Opacity)[0]);
    const auto toPixels = around.toPixels.after(peer.shownToSuperlayer());
    if (peer.hidden || opacity <= 0 || pixelsPerPoint(toPixels) == 0)
        return;
    const auto index = items_.size();
    auto& item = items_.emplace_back();
    item.look = LayerLook::of(peer, toPixels);
    item.opacity = opacity;
    item.identity = peer.identity();
    item.enclosing = around.enclosing;
    item.delegate = peer.delegate;
    item.clip = around.clip;
    item.innerClip = item.look.masksToBounds ? item.clip & maskedClip(item.look) : item.clip;
    item.body = bodyExtent(item.look, item.delegate) & item.clip;
    item.extent = item.body | (shadowExtent(item.look) & item.clip);
    item.wholeExtent = item.extent;
    addSublayers(layer, index);
    items_[index].end = items_.size();
}

PaintList::Surroundings PaintList::within(const PaintItem& item) {
    const auto isApart = item.isGroup() || item.hasSoftMask();
    return {.toPixels = item.look.toPixels,
            .clip = item.innerClip,
            .enclosing = isApart ? item.identity : item.enclosing};
}

void PaintList::addSublayers(const CALayer& layer, std::size_t index) {
    const auto around = within(items_[index]);
    for (const auto& sublayer : layer.peer().sublayers()) {
        const auto first = items_.size();
        add(*sublayer, around);
        if (first < items_.size())
            items_[index].wholeExtent |= items_[first].wholeExtent;
    }
}
