#include "QuartzCore/CAGradientLayer.h"

#include "CAGradientLayerPeer.h"
#include "ObjectiveC/Class.h"
#include "objects/PeerOf.h"

namespace {

const Class classObject = Class::define<CAGradientLayer, CALayer>("CAGradientLayer");

} // namespace

CAGradientLayer::CAGradientLayer() : CALayer(std::make_unique<CAGradientLayerPeer>(*this)) {}

void CAGradientLayer::setColors(const std::vector<Ref<UIColor>>& colors) {
    peerOf<CAGradientLayerPeer>(*this).setColors(colors);
}

void CAGradientLayer::setStartPoint(CGPoint point) {
    peerOf<CAGradientLayerPeer>(*this).setStartPoint(point);
}

void CAGradientLayer::setEndPoint(CGPoint point) {
    peerOf<CAGradientLayerPeer>(*this).setEndPoint(point);
}
