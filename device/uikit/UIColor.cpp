#include "UIKit/UIColor.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UIColor> frameworkClass("UIColor");

} // namespace

Ref<UIColor> UIColor::colorWithRed(double red, double green, double blue, double alpha) {
    return sendToClass<"+[UIColor colorWithRed:green:blue:alpha:]", Ref<UIColor>>(red, green, blue, alpha);
}

Ref<UIColor> UIColor::colorWithWhite(double white, double alpha) {
    return sendToClass<"+[UIColor colorWithWhite:alpha:]", Ref<UIColor>>(white, alpha);
}

Ref<UIColor> UIColor::clearColor() {
    return sendToClass<"+[UIColor clearColor]", Ref<UIColor>>();
}

Ref<UIColor> UIColor::blackColor() {
    return sendToClass<"+[UIColor blackColor]", Ref<UIColor>>();
}

Ref<UIColor> UIColor::whiteColor() {
    return sendToClass<"+[UIColor whiteColor]", Ref<UIColor>>();
}

Ref<UIColor> UIColor::grayColor() {
    return sendToClass<"+[UIColor grayColor]", Ref<UIColor>>();
}

Ref<UIColor> UIColor::yellowColor() {
    return sendToClass<"+[UIColor yellowColor]", Ref<UIColor>>();
}

Ref<UIColor> UIColor::lightGrayColor() {
    return sendToClass<"+[UIColor lightGrayColor]", Ref<UIColor>>();
}

Ref<UIColor> UIColor::labelColor() {
    return sendToClass<"+[UIColor labelColor]", Ref<UIColor>>();
}

Ref<UIColor> UIColor::systemBlueColor() {
    return sendToClass<"+[UIColor systemBlueColor]", Ref<UIColor>>();
}

Ref<UIColor> UIColor::systemGreenColor() {
    return sendToClass<"+[UIColor systemGreenColor]", Ref<UIColor>>();
}

Ref<UIColor> UIColor::systemOrangeColor() {
    return sendToClass<"+[UIColor systemOrangeColor]", Ref<UIColor>>();
}

Ref<UIColor> UIColor::systemRedColor() {
    return sendToClass<"+[UIColor systemRedColor]", Ref<UIColor>>();
}
