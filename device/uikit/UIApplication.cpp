#include "UIKit/UIApplication.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UIApplication, UIResponder> frameworkClass("UIApplication");

} // namespace

Ref<UIApplication> UIApplication::sharedApplication() {
    return sendToClass<"+[UIApplication sharedApplication]", Ref<UIApplication>>();
}
