#include "UIKit/UIApplication.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UIApplication, UIResponder> frameworkClass("UIApplication");

} // namespace

Ref<UIApplication> UIApplication::sharedApplication() {
    return sendToClass<"+[UIApplication sharedApplication]", Ref<UIApplication>>();
}

bool UIApplication::canOpenURL(const Ref<NSURL>& url) const {
    return send<"-[UIApplication canOpenURL:]", bool>(*this, url);
}

void UIApplication::openURL(const Ref<NSURL>& url, std::function<void(bool)> completion) {
    const AutoreleasePool pool;
    send<"-[UIApplication openURL:options:completionHandler:]", void>(
        *this, url, PropertyList(PropertyList::Dictionary()), completion);
}
