#include "screen/DesktopApplication.h"

#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<DesktopApplication, UIResponder>(
    "UIApplication", {method<"suspend", &DesktopApplication::suspend>()});

} // namespace

Ref<UIApplication> UIApplication::sharedApplication() {
    return retain(&DesktopApplication::shared());
}

DesktopApplication& DesktopApplication::shared() {
    static const auto application = make<DesktopApplication>();
    return *application;
}

void DesktopApplication::suspend() {
    if (const auto handler = suspendHandler_)
        handler();
}
