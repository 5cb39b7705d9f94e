#include "screen/DesktopApplication.h"

#include "ObjectiveC/Class.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <ranges>

namespace {

const Class classObject = Class::define<DesktopApplication, UIResponder>(
    "UIApplication", {method<"suspend", &DesktopApplication::suspend>(),
                      method<"keyWindow", &DesktopApplication::keyWindow>()});

} // namespace

Ref<UIApplication> UIApplication::sharedApplication() {
    return retain(&DesktopApplication::shared());
}

DesktopApplication& DesktopApplication::shared() {
    static const auto application = make<DesktopApplication>();
    return *application;
}

Ref<UIWindow> DesktopApplication::keyWindow() const {
    const auto fromFront = Screen::current().windows() | std::views::reverse;
    const auto found = std::ranges::find_if(fromFront, [](const Ref<UIWindow>& window) {
        return window->windowLevel() == 0 && window->peer().isUserInteractionEnabled();
    });
    return found != fromFront.end() ? *found : nullptr;
}

void DesktopApplication::suspend() {
    if (const auto handler = suspendHandler_)
        handler();
}
