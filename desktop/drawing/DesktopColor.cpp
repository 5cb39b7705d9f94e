#include "DesktopColor.h"

#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<UIColor>("UIColor");

Appearance appearanceOf(const Traits& traits) {
    if (traits.style == UserInterfaceStyle::Light)
        return Appearance::Light;
    return traits.elevated ? Appearance::DarkElevated : Appearance::Dark;
}

} // namespace

ColorComponents DesktopColor::resolve(const Ref<UIColor>& color, const Traits& traits) {
    const auto* const known = dynamic_cast<const DesktopColor*>(color.get());
    if (known == nullptr)
        return {.red = 0, .green = 0, .blue = 0, .alpha = 0};
    return known->role_ ? systemColor(*known->role_, appearanceOf(traits)) : known->fixed_;
}

Ref<UIColor> UIColor::colorWithRed(double red, double green, double blue, double alpha) {
    return DesktopColor::fixed({.red = red, .green = green, .blue = blue, .alpha = alpha});
}

Ref<UIColor> UIColor::colorWithWhite(double white, double alpha) {
    return colorWithRed(white, white, white, alpha);
}

Ref<UIColor> UIColor::clearColor() {
    return colorWithRed(0, 0, 0, 0);
}

Ref<UIColor> UIColor::blackColor() {
    return colorWithRed(0, 0, 0, 1);
}

Ref<UIColor> UIColor::whiteColor() {
    return colorWithRed(1, 1, 1, 1);
}

Ref<UIColor> UIColor::grayColor() {
    return colorWithRed(0.5, 0.5, 0.5, 1);
}

Ref<UIColor> UIColor::yellowColor() {
    return colorWithRed(1, 1, 0, 1);
}

Ref<UIColor> UIColor::lightGrayColor() {
    constexpr auto white = 2.0 / 3;
    return colorWithRed(white, white, white, 1);
}

Ref<UIColor> UIColor::labelColor() {
    return DesktopColor::system(SystemColor::Label);
}

Ref<UIColor> UIColor::systemBlueColor() {
    return DesktopColor::system(SystemColor::Blue);
}

Ref<UIColor> UIColor::systemGreenColor() {
    return DesktopColor::system(SystemColor::Green);
}

Ref<UIColor> UIColor::systemOrangeColor() {
    return DesktopColor::system(SystemColor::Orange);
}

Ref<UIColor> UIColor::systemRedColor() {
    return DesktopColor::system(SystemColor::Red);
}
