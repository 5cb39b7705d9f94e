#include "UIKit/UIFont.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UIFont> frameworkClass("UIFont");

} // namespace

Ref<UIFont> UIFont::systemFontOfSize(double size) {
    return sendToClass<"+[UIFont systemFontOfSize:]", Ref<UIFont>>(size);
}
