#include "views/DesktopBlurEffect.h"

#include "DesktopColor.h"
#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<UIBlurEffect>("UIBlurEffect");

constexpr Backdrop regularBlur{.blurRadius = 30, .saturation = 1.8};

} // namespace

Ref<UIBlurEffect> UIBlurEffect::effectWithStyle(UIBlurEffectStyle style) {
    if (style != UIBlurEffectStyle::Regular)
        return nullptr;
    return make<DesktopBlurEffect>(
        make<DesktopBackdropSettings>(regularBlur, DesktopColor::system(SystemColor::RegularMaterial)));
}
