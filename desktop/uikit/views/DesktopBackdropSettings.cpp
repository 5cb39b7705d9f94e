#include "views/DesktopBackdropSettings.h"

#include "DesktopColor.h"
#include "ObjectiveC/Class.h"

#include <utility>

namespace {

const Class classObject = Class::define<_UIBackdropViewSettings>("_UIBackdropViewSettings");

constexpr int adaptiveStyle = 2;
constexpr Backdrop thickBlur{.blurRadius = 30, .saturation = 1.8};

} // namespace

DesktopBackdropSettings::DesktopBackdropSettings(const Backdrop& blur, Ref<UIColor> tint)
    : blur_(blur),
      tint_(std::move(tint)) {}

Ref<_UIBackdropViewSettings> _UIBackdropViewSettings::settingsForStyle(int style) {
    if (style != adaptiveStyle)
        return nullptr;
    return make<DesktopBackdropSettings>(thickBlur, DesktopColor::system(SystemColor::ThickMaterial));
}
