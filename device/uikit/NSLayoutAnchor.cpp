#include "UIKit/NSLayoutAnchor.h"

#include "FrameworkClass.h"
#include "UIKit/NSLayoutDimension.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"

namespace {

const FrameworkClassOf<NSLayoutAnchor> anchorClass("NSLayoutAnchor");
const FrameworkClassOf<NSLayoutXAxisAnchor, NSLayoutAnchor> xAxisClass("NSLayoutXAxisAnchor");
const FrameworkClassOf<NSLayoutYAxisAnchor, NSLayoutAnchor> yAxisClass("NSLayoutYAxisAnchor");
const FrameworkClassOf<NSLayoutDimension, NSLayoutAnchor> dimensionClass("NSLayoutDimension");

} // namespace

Ref<NSLayoutConstraint> NSLayoutAnchor::constraintEqualTo(const NSLayoutAnchor& anchor,
                                                          double constant) const {
    return send<"-[NSLayoutAnchor constraintEqualToAnchor:constant:]", Ref<NSLayoutConstraint>>(*this, anchor,
                                                                                                constant);
}

Ref<NSLayoutConstraint> NSLayoutDimension::constraintEqualToConstant(double constant) const {
    return send<"-[NSLayoutDimension constraintEqualToConstant:]", Ref<NSLayoutConstraint>>(*this, constant);
}
