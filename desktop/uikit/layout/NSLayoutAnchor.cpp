#include "UIKit/NSLayoutAnchor.h"

#include "ObjectiveC/Class.h"
#include "UIKit/NSLayoutDimension.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "layout/DesktopLayoutAnchor.h"
#include "layout/NSLayoutConstraintPeer.h"

namespace {

const Class anchorClass = Class::define<NSLayoutAnchor>("NSLayoutAnchor");
const Class xAxisClass = Class::define<NSLayoutXAxisAnchor, NSLayoutAnchor>("NSLayoutXAxisAnchor");
const Class yAxisClass = Class::define<NSLayoutYAxisAnchor, NSLayoutAnchor>("NSLayoutYAxisAnchor");
const Class dimensionClass = Class::define<NSLayoutDimension, NSLayoutAnchor>("NSLayoutDimension");

const LayoutAnchor& placeOf(const NSLayoutAnchor& anchor) {
    return dynamic_cast<const AnchoredPlace&>(anchor).anchor();
}

} // namespace

Ref<NSLayoutConstraint> NSLayoutAnchor::constraintEqualTo(const NSLayoutAnchor& anchor,
                                                          double constant) const {
    return NSLayoutConstraintPeer::makeConstraint(
        {.first = placeOf(*this), .second = placeOf(anchor), .constant = constant});
}

Ref<NSLayoutConstraint> NSLayoutDimension::constraintEqualToConstant(double constant) const {
    return NSLayoutConstraintPeer::makeConstraint(
        {.first = placeOf(*this), .second = std::nullopt, .constant = constant});
}
