#include "QuartzCore/CAGradientLayer.h"

#include "CoreColor.h"
#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<CAGradientLayer, CALayer> frameworkClass("CAGradientLayer");

} // namespace

CAGradientLayer::CAGradientLayer() = default;

void CAGradientLayer::setColors(const std::vector<Ref<UIColor>>& colors) {
    const AutoreleasePool pool;
    send<"-[CAGradientLayer setColors:]", void>(
        *this, arrayOf(colors, [](const Ref<UIColor>& color) { return static_cast<id>(coreColor(color)); }));
}

void CAGradientLayer::setStartPoint(CGPoint point) {
    send<"-[CAGradientLayer setStartPoint:]", void>(*this, point);
}

void CAGradientLayer::setEndPoint(CGPoint point) {
    send<"-[CAGradientLayer setEndPoint:]", void>(*this, point);
}
