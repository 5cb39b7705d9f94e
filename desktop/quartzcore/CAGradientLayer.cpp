#include "QuartzCore/CAGradientLayer.h"

#include "CAGradientLayerPeer.h"
#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<CAGradientLayer, CALayer>("CAGradientLayer");

CAGradientLayerPeer& peerOf(const CAGradientLayer& layer) {
    return dynamic_cast<CAGradientLayerPeer&>(layer.peer());
}

} // namespace

CAGradientLayer::CAGradientLayer() : CALayer(std::make_unique<CAGradientLayerPeer>(*this)) {}

void CAGradientLayer::setColors(const std::vector<Ref<UIColor>>& colors) {
    peerOf(*this).setColors(colors);
}

void CAGradientLayer::setStartPoint(CGPoint point) {
    peerOf(*this).setStartPoint(point);
}

void CAGradientLayer::setEndPoint(CGPoint point) {
    peerOf(*this).setEndPoint(point);
}
