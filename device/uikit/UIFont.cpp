#include "UIKit/UIFont.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UIFont> frameworkClass("UIFont");

} // namespace

Ref<UIFont> UIFont::systemFontOfSize(double size) {
    return sendToClass<"+[UIFont systemFontOfSize:]", Ref<UIFont>>(size);
}

Ref<UIFont> UIFont::systemFontOfSize(double size, double weight) {
    return sendToClass<"+[UIFont systemFontOfSize:weight:]", Ref<UIFont>>(size, weight);
}

Ref<UIFont> UIFont::boldSystemFontOfSize(double size) {
    return sendToClass<"+[UIFont boldSystemFontOfSize:]", Ref<UIFont>>(size);
}
