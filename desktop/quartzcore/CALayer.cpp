#include "QuartzCore/CALayer.h"

#include "CALayerPeer.h"
#include "DesktopBezierPath.h"
#include "DesktopColor.h"
#include "LayerDelegate.h"
#include "ObjectiveC/Class.h"

#include <utility>

namespace {

const Class classObject = Class::define<CALayer>("CALayer");

ColorComponents presentLook(const CALayerPeer& peer, const Ref<UIColor>& color) {
    return DesktopColor::resolve(color, peer.delegate != nullptr ? peer.delegate->layerTraits() : Traits());
}

} // namespace

CALayer::CALayer() : peer_(std::make_unique<CALayerPeer>(*this)) {}

CALayer::CALayer(std::unique_ptr<CALayerPeer> peer) : peer_(std::move(peer)) {}

CALayer::~CALayer() = default;

void CALayer::setFrame(const CGRect& frame) {
    peer_->setFrame(frame);
}

void CALayer::insertSublayer(const Ref<CALayer>& sublayer, std::size_t index) {
    peer_->insertSublayer(sublayer, index);
}

double CALayer::cornerRadius() const {
    return peer_->number(LayerProperty::CornerRadius);
}

void CALayer::setCornerRadius(double radius) {
    peer_->setNumber(LayerProperty::CornerRadius, radius);
}

void CALayer::setBorderWidth(double width) {
    peer_->setNumber(LayerProperty::BorderWidth, width);
}

void CALayer::setBorderColor(const Ref<UIColor>& color) {
    peer_->setColor(LayerProperty::BorderColor, presentLook(*peer_, color));
}

void CALayer::setShadowColor(const Ref<UIColor>& color) {
    peer_->setColor(LayerProperty::ShadowColor, presentLook(*peer_, color));
}

void CALayer::setShadowRadius(double radius) {
    peer_->setNumber(LayerProperty::ShadowRadius, radius);
}

void CALayer::setShadowOpacity(double opacity) {
    peer_->setNumber(LayerProperty::ShadowOpacity, opacity);
}

void CALayer::setShadowOffset(CGSize offset) {
    peer_->setValue(LayerProperty::ShadowOffset, {offset.width, offset.height});
}

void CALayer::setShadowPath(const Ref<UIBezierPath>& path) {
    const auto outline = dynamicCast<DesktopBezierPath>(path);
    peer_->shadowPath = outline ? std::optional(outline->path()) : std::nullopt;
}

void CALayer::setMasksToBounds(bool masks) {
    peer_->masksToBounds = masks;
}
