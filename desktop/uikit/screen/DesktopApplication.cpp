#include "screen/DesktopApplication.h"

#include "DesktopURL.h"
#include "Device.h"
#include "Dispatch/MainQueue.h"
#include "ObjectiveC/Class.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"
#include "system/ApplicationSuspension.h"
#include "system/UrlOpener.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <ranges>
#include <utility>

namespace {

const Class classObject = Class::define<DesktopApplication, UIResponder>(
    "UIApplication", {method<"suspend", &DesktopApplication::suspend>(),
                      method<"keyWindow", &DesktopApplication::keyWindow>()});

const std::string& textOf(const Ref<NSURL>& url) {
    return dynamicCast<DesktopURL>(url)->absoluteString();
}

} // namespace

Ref<UIApplication> UIApplication::sharedApplication() {
    return retain(&DesktopApplication::shared());
}

bool UIApplication::canOpenURL(const Ref<NSURL>& url) const {
    return Device::current().urls().canOpen(textOf(url));
}

void UIApplication::openURL(const Ref<NSURL>& url, std::function<void(bool)> completion) {
    const auto isOpened = Device::current().urls().open(textOf(url));
    if (completion)
        MainQueue::async([completion = std::move(completion), isOpened] { completion(isOpened); });
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
    Device::current().suspensions().request();
}
