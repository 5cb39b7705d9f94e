#include "QuartzCore/CALayer.h"

#include "CoreColor.h"
#include "FrameworkClass.h"

/// Nothing is known of a layer beside its Objective-C object.
class CALayerPeer {};

namespace {

const FrameworkClassOf<CALayer> frameworkClass("CALayer");

} // namespace

CALayer::CALayer() = default;
CALayer::~CALayer() = default;

CALayer::CALayer(std::unique_ptr<CALayerPeer> peer) : peer_(std::move(peer)) {}

void CALayer::setFrame(const CGRect& frame) {
    send<"-[CALayer setFrame:]", void>(*this, frame);
}

void CALayer::insertSublayer(const Ref<CALayer>& sublayer, std::size_t index) {
    send<"-[CALayer insertSublayer:atIndex:]", void>(*this, sublayer, static_cast<std::uint32_t>(index));
}

double CALayer::cornerRadius() const {
    return send<"-[CALayer cornerRadius]", double>(*this);
}

void CALayer::setCornerRadius(double radius) {
    send<"-[CALayer setCornerRadius:]", void>(*this, radius);
}

void CALayer::setBorderWidth(double width) {
    send<"-[CALayer setBorderWidth:]", void>(*this, width);
}

void CALayer::setBorderColor(const Ref<UIColor>& color) {
    send<"-[CALayer setBorderColor:]", void>(*this, coreColor(color));
}

void CALayer::setShadowColor(const Ref<UIColor>& color) {
    send<"-[CALayer setShadowColor:]", void>(*this, coreColor(color));
}

void CALayer::setShadowRadius(double radius) {
    send<"-[CALayer setShadowRadius:]", void>(*this, radius);
}

void CALayer::setShadowOpacity(double opacity) {
    send<"-[CALayer setShadowOpacity:]", void>(*this, static_cast<float>(opacity));
}

void CALayer::setShadowOffset(CGSize offset) {
    send<"-[CALayer setShadowOffset:]", void>(*this, offset);
}

void CALayer::setShadowPath(const Ref<UIBezierPath>& path) {
    send<"-[CALayer setShadowPath:]", void>(*this,
                                            send<"-[UIBezierPath CGPath]", void*>(objectOf(path.get())));
}

void CALayer::setMasksToBounds(bool masks) {
    send<"-[CALayer setMasksToBounds:]", void>(*this, masks);
}
