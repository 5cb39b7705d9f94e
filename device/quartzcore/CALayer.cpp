#include "QuartzCore/CALayer.h"

#include "FrameworkClass.h"

/// Nothing is known of a layer beside its Objective-C object.
class CALayerPeer {};

namespace {

const FrameworkClassOf<CALayer> frameworkClass("CALayer");

/// A colour as layers take it; null for none.
void* coreColor(const Ref<UIColor>& color) {
    return send<"-[UIColor CGColor]", void*>(objectOf(color.get()));
}

} // namespace

CALayer::CALayer() = default;
CALayer::~CALayer() = default;

double CALayer::cornerRadius() const {
    return send<"-[CALayer cornerRadius]", double>(*this);
}

void CALayer::setCornerRadius(double radius) {
    send<"-[CALayer setCornerRadius:]", void>(*this, radius);
}

double CALayer::borderWidth() const {
    return send<"-[CALayer borderWidth]", double>(*this);
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
