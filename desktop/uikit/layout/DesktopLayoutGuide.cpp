#include "layout/DesktopLayoutGuide.h"

#include "ObjectiveC/Class.h"
#include "layout/DesktopLayoutAnchor.h"

namespace {

const Class classObject = Class::define<UILayoutGuide>("UILayoutGuide");

} // namespace

Ref<NSLayoutYAxisAnchor> DesktopLayoutGuide::topAnchor() const {
    return make<DesktopLayoutAnchor<NSLayoutYAxisAnchor>>(LayoutAnchor(view_, LayoutAttribute::Top, guide_));
}

Ref<NSLayoutYAxisAnchor> DesktopLayoutGuide::centerYAnchor() const {
    return make<DesktopLayoutAnchor<NSLayoutYAxisAnchor>>(
        LayoutAnchor(view_, LayoutAttribute::CenterY, guide_));
}
