#include "screen/DesktopApplication.h"

#include "ObjectiveC/Method.h"
#include "UIKit/UIViewController.h"
#include "screen/ShownScreen.h"
#include "system/ApplicationSuspension.h"
#include "system/UrlOpener.h"

#include <gtest/gtest.h>

TEST(DesktopApplicationTest, TheKeyWindowIsTheFrontmostThatTakesTouches) {
    ShownScreen shown;
    const auto& application = DesktopApplication::shared();
    EXPECT_EQ(application.keyWindow(), shown.window);
    const auto front = make<UIWindow>();
    const auto bars = make<UIWindow>();
    bars->setWindowLevel(1);
    shown.screen.addWindow(front);
    shown.screen.addWindow(bars);
    EXPECT_EQ(application.keyWindow(), front);
    front->setUserInteractionEnabled(false);
    EXPECT_EQ(application.keyWindow(), shown.window);
    shown.window->setUserInteractionEnabled(false);
    EXPECT_FALSE(application.keyWindow());
    shown.screen.removeWindow(*bars);
    shown.screen.removeWindow(*front);
}

TEST(DesktopApplicationTest, TheKeyWindowAndItsControllerAreFoundByTheirNames) {
    const ShownScreen shown;
    const auto controller = make<UIViewController>();
    shown.window->setRootViewController(controller);
    const auto window = MessageTraits<Ref<NSObject>>::unpack(
        UIApplication::sharedApplication()->performSelector("keyWindow"));
    EXPECT_EQ(window, shown.window);
    EXPECT_EQ(MessageTraits<Ref<NSObject>>::unpack(window->performSelector("rootViewController")),
              controller);
}

TEST(DesktopApplicationTest, ItsWishToSuspendEndsWithTheDevice) {
    int suspensions = 0;
    const auto suspend = [] { UIApplication::sharedApplication()->performSelector("suspend"); };
    {
        const ShownScreen shown;
        suspend();
        Device::current().suspensions().setHandler([&suspensions] { ++suspensions; });
        suspend();
        EXPECT_EQ(suspensions, 1);
    }
    const ShownScreen shown;
    suspend();
    EXPECT_EQ(suspensions, 1);
}

TEST(DesktopApplicationTest, AUrlIsOpenedAndWhoAskedIsToldLater) {
    ShownScreen shown;
    auto& urls = Device::current().urls();
    urls.setHandler("works", UrlOpener::Handler::Works);
    urls.setHandler("fails", UrlOpener::Handler::Fails);
    const auto application = UIApplication::sharedApplication();
    std::vector<bool> told;
    for (const auto* const text : {"works://a%20b", "fails://a", "none://a"}) {
        const auto url = NSURL::URLWithString(text);
        EXPECT_EQ(application->canOpenURL(url), std::string_view(text) != "none://a");
        application->openURL(url, [&told](bool isOpened) { told.push_back(isOpened); });
        application->openURL(url, {});
    }
    EXPECT_TRUE(told.empty());
    shown.device.settle();
    EXPECT_EQ(told, (std::vector{true, false, false}));
    EXPECT_EQ(urls.take(), (std::vector<std::string>{"works://a%20b", "works://a%20b"}));
}
