// The end of the Settings application.

#include "LayoutCounter.h"
#include "ShellFixture.h"
#include "UIKit/UITextField.h"
#include "keyboard/Keyboard.h"
#include "objects/LiveObjects.h"
#include "screen/UIWindow.h"
#include "system/ApplicationTermination.h"
#include "time/MainQueueScheduler.h"
#include "views/UIViewPeer.h"

namespace {

using namespace std::chrono_literals;

using ShellTerminationTest = ShellFixture;

} // namespace

TEST_F(ShellTerminationTest, EndedSettingsStartsAfresh) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    shell->terminateSettings();
    EXPECT_EQ(shell->app(), "home");
    EXPECT_EQ(shell->settings(), nullptr);
    shell->relaunch();
    settle();
    EXPECT_EQ(shell->app(), "Settings");
    EXPECT_EQ(titles(), Titles{"Settings"});
}

TEST_F(ShellTerminationTest, EndedSettingsLeavesNothingOfItsPanesBehind) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    const auto controllers = [] {
        return LiveObjects::shared().countOf(*NSClassFromString("UIViewController"));
    };
    EXPECT_GT(controllers(), 0U);
    shell->terminateSettings();
    EXPECT_EQ(controllers(), 0U);
    EXPECT_EQ(NSClassFromString("standInPage"), nullptr) << "its code is unloaded";
    advance(0ms);
    EXPECT_FALSE(Device::current().mainQueue().nextDue());
    EXPECT_EQ(device.log().take(), Titles());
}

TEST_F(ShellTerminationTest, ABundleWithAnObjectLeftStaysLoaded) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    const auto kept = topPage();
    shell->terminateSettings();
    EXPECT_EQ(device.log().take(), Titles{"1 objects of the bundle Good have outlived the application."});
    EXPECT_EQ(kept->isa().name(), "standInPage");
}

TEST_F(ShellTerminationTest, TheSystemsRequestEndsSettingsOnceItsCodeHasReturned) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    Device::current().terminations().request({.identifier = "com.apple.mobilesafari"});
    settle();
    EXPECT_NE(shell->settings(), nullptr);
    Device::current().terminations().request({.identifier = "com.apple.Preferences"});
    EXPECT_NE(shell->settings(), nullptr);
    settle();
    EXPECT_EQ(shell->settings(), nullptr);
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellTerminationTest, ARequestForSettingsThatDoesNotRunDoesNothing) {
    Device::current().terminations().request({.identifier = "com.apple.Preferences"});
    settle();
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellTerminationTest, SettingsCanBeEndedWhileItIsStillOpening) {
    ASSERT_TRUE(shell->openEntry("good"));
    shell->terminateSettings();
    settle();
    EXPECT_EQ(shell->app(), "home");
    shell->launchSettings();
    settle();
    EXPECT_EQ(titles(), Titles{"Settings"});
}

TEST_F(ShellTerminationTest, TheKeyboardGoesWithTheApplicationThatItWasTypedInto) {
    for (const auto wait : {0ms, 100ms, 1000ms}) {
        openPane("good");
        const auto field = make<UITextField>();
        topPage()->view().addSubview(field);
        ASSERT_TRUE(field->becomeFirstResponder());
        advance(wait);
        shell->terminateSettings();
        EXPECT_EQ(screen->keyboardHeight(), 0);
        EXPECT_FALSE(screen->keyboard().isShown());
        settle();
        EXPECT_FALSE(screen->keyboard().isShown());
        EXPECT_EQ(screen->hitTest({57, 106})->peer().accessibility().label, "Settings");
    }
}

TEST_F(ShellTerminationTest, TheKeyboardThatIsOnItsWayOutIsGone) {
    openPane("good");
    const auto field = make<UITextField>();
    topPage()->view().addSubview(field);
    ASSERT_TRUE(field->becomeFirstResponder());
    settle();
    shell->goHome();
    advance(100ms);
    shell->terminateSettings();
    settle();
    EXPECT_EQ(screen->hitTest({195, 700})->peer().window(), screen->windows().front().get())
        << "nothing is above the home screen";
}

TEST_F(ShellTerminationTest, WhatIsChangedOnTheScreenAfterwardsIsStillLaidOut) {
    openPane("good");
    screen->scheduleLayout();
    shell->terminateSettings();
    const auto window = make<UIWindow>();
    const auto view = make<LayoutCounter>();
    window->addSubview(view);
    screen->addWindow(window);
    settle();
    EXPECT_GT(view->layouts, 0);
    screen->removeWindow(*window);
}
