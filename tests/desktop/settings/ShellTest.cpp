#include "Shell.h"

#include "ApplicationTermination.h"
#include "BundleFixture.h"
#include "Compositor.h"
#include "DesktopMenu.h"
#include "EntryList.h"
#include "LiveObjects.h"
#include "MenuPresentation.h"
#include "PSListControllerPeer.h"
#include "Screen.h"
#include "TouchDispatcher.h"
#include "UIButton.h"
#include "UIKit/UIApplication.h"
#include "UINavigationControllerPeer.h"

#include <chrono>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace std::chrono_literals;

class ShellTest : public BundleFixture {
protected:
    void SetUp() override {
        install("Good", "standInPage", builtCode("StandInPage"));
        writeEntry("good", "Good");
        writeEntry("missing", "Missing");
        start(Idiom::Phone);
    }

    void start(Idiom idiom) {
        shell.reset();
        screen.reset();
        screen.emplace(Screen::Options{.idiom = idiom});
        shell.emplace();
        screen->layoutIfNeeded();
    }

    void writeEntry(const std::string& name, const std::string& bundle) const {
        device.write(std::string(EntryList::folder) + "/" + name + ".plist",
                     "<plist version=\"1.0\"><dict><key>entry</key><dict><key>bundle</key><string>" + bundle +
                         "</string></dict></dict></plist>");
    }

    void settle() { EXPECT_TRUE(Device::current().mainQueue().settle(device.clock(), 10s)); }

    /// The titles of the pages that panes are opened on, the first one first.
    [[nodiscard]] std::vector<std::string> titles() const {
        std::vector<std::string> all;
        for (const auto& page : UINavigationControllerPeer::of(*shell->settings()->pages()).stack())
            all.push_back(page->peer().title());
        return all;
    }

    [[nodiscard]] std::string topClass() const {
        return UINavigationControllerPeer::of(*shell->settings()->pages()).top()->isa().name();
    }

    void advance(std::chrono::milliseconds time) {
        Device::current().mainQueue().advance(device.clock(), time);
    }

    /// A finger that comes down and moves, 16 ms a step; it stays down.
    void drag(CGPoint from, CGPoint to, int steps = 20) {
        finger.touch(TouchPhase::Began, from);
        for (int step = 1; step <= steps; ++step) {
            advance(16ms);
            const auto part = static_cast<double>(step) / steps;
            finger.touch(TouchPhase::Moved, {std::lerp(from.x, to.x, part), std::lerp(from.y, to.y, part)});
        }
    }

    void lift(CGPoint place) { finger.touch(TouchPhase::Ended, place); }

    void openPane(const std::string& name) {
        ASSERT_TRUE(shell->openEntry(name));
        settle();
    }

    /// Of the first page; "" when none is selected.
    [[nodiscard]] std::string selectedLabel() const {
        auto& columns = shell->settings()->rootViewController()->peer();
        const auto first = dynamicCast<UINavigationController>(columns.children().front());
        const auto page = dynamicCast<PSListController>(UINavigationControllerPeer::of(*first).top());
        auto& table = PSListControllerPeer::of(*page).table();
        const auto row = table.selectedRow();
        return row ? *table.cellForRow(*row)->textLabel().text() : "";
    }

    /// Where Settings is on the screen.
    [[nodiscard]] CGRect frameOfSettings() const {
        const auto& view = shell->settings()->rootViewController()->view();
        return view.peer().convertToScreen(view.bounds());
    }

    std::optional<Screen> screen;
    std::optional<Shell> shell;
    TouchDispatcher finger;
};

using Titles = std::vector<std::string>;

} // namespace

TEST_F(ShellTest, StartsOnTheHomeScreenWithNothingRunning) {
    EXPECT_EQ(shell->app(), "home");
    EXPECT_EQ(shell->settings(), nullptr);
}

TEST_F(ShellTest, LaunchingSettingsShowsItsFirstPage) {
    shell->launchSettings();
    EXPECT_EQ(shell->app(), "Settings");
    settle();
    EXPECT_EQ(titles(), Titles{"Settings"});
}

TEST_F(ShellTest, TheFirstPageHasARowForEachEntry) {
    shell->launchSettings();
    settle();
    const auto top =
        dynamicCast<PSListController>(UINavigationControllerPeer::of(*shell->settings()->pages()).top());
    ASSERT_TRUE(top);
    Titles labels;
    for (const auto& row : PSListControllerPeer::of(*top).rows()) {
        if (row.cell != "PSGroupCell")
            labels.push_back(row.label);
    }
    EXPECT_EQ(labels, (Titles{"About", "good", "missing"}));
}

TEST_F(ShellTest, OpeningAnEntryShowsItsPane) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    EXPECT_EQ(shell->app(), "Settings");
    EXPECT_EQ(titles(), (Titles{"Settings", "good"}));
    EXPECT_EQ(topClass(), "standInPage");
}

TEST_F(ShellTest, OpeningAnotherEntryTakesTheFirstOnesPlace) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    ASSERT_TRUE(shell->openEntry("missing"));
    settle();
    EXPECT_EQ(titles(), (Titles{"Settings", "missing"}));
}

TEST_F(ShellTest, APaneThatCannotBeOpenedIsReplacedByAPageThatSaysWhy) {
    ASSERT_TRUE(shell->openEntry("missing"));
    settle();
    EXPECT_EQ(topClass(), "ProblemPage");
    EXPECT_EQ(device.log().take(),
              Titles{"The pane missing cannot be opened: There is no bundle “Missing” in "
                     "/var/jb/Library/PreferenceBundles."});
}

TEST_F(ShellTest, AnEntryThatDoesNotExistLeavesEverythingAsItIs) {
    const auto opened = shell->openEntry("nothing");
    ASSERT_FALSE(opened);
    EXPECT_EQ(opened.error(), "There is no entry called “nothing”.");
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellTest, SettingsRunsOnBehindTheHomeScreen) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    const auto* const before = shell->settings();
    shell->goHome();
    settle();
    EXPECT_EQ(shell->app(), "home");
    shell->launchSettings();
    settle();
    EXPECT_EQ(shell->settings(), before);
    EXPECT_EQ(titles(), (Titles{"Settings", "good"}));
}

TEST_F(ShellTest, EndedSettingsStartsAfresh) {
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

TEST_F(ShellTest, EndedSettingsLeavesNothingOfItsPanesBehind) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    const auto controllers = [] {
        return LiveObjects::shared().countOf(*NSClassFromString("UIViewController"));
    };
    EXPECT_GT(controllers(), 0U);
    shell->terminateSettings();
    EXPECT_EQ(controllers(), 0U);
    EXPECT_EQ(NSClassFromString("standInPage"), nullptr) << "its code is unloaded";
    EXPECT_FALSE(Device::current().mainQueue().nextDue());
    EXPECT_EQ(device.log().take(), Titles());
}

TEST_F(ShellTest, ABundleWithAnObjectLeftStaysLoaded) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    const auto kept = UINavigationControllerPeer::of(*shell->settings()->pages()).top();
    shell->terminateSettings();
    EXPECT_EQ(device.log().take(), Titles{"1 objects of the bundle Good have outlived the application."});
    EXPECT_EQ(kept->isa().name(), "standInPage");
}

TEST_F(ShellTest, TheSystemsRequestEndsSettingsOnceItsCodeHasReturned) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    ApplicationTermination::shared().request({.identifier = "com.apple.mobilesafari"});
    settle();
    EXPECT_NE(shell->settings(), nullptr);
    ApplicationTermination::shared().request({.identifier = "com.apple.Preferences"});
    EXPECT_NE(shell->settings(), nullptr);
    settle();
    EXPECT_EQ(shell->settings(), nullptr);
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellTest, ARequestForSettingsThatDoesNotRunDoesNothing) {
    ApplicationTermination::shared().request({.identifier = "com.apple.Preferences"});
    settle();
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellTest, ASuspendedApplicationGoesToTheBackground) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    UIApplication::sharedApplication()->performSelector("suspend");
    EXPECT_EQ(shell->app(), "home");
    settle();
    EXPECT_NE(shell->settings(), nullptr);
}

TEST_F(ShellTest, WhatSettingsHasPresentedIsThereAgainOnTheWayBack) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    const auto sheet = make<UIViewController>();
    shell->settings()->pages()->presentViewController(sheet, true, {});
    settle();
    shell->goHome();
    settle();
    EXPECT_EQ(screen->presentations().top(), nullptr) << "nothing of it is on the home screen";
    shell->launchSettings();
    settle();
    ASSERT_NE(screen->presentations().top(), nullptr);
    EXPECT_EQ(screen->presentations().top()->kind(), "sheet");
    EXPECT_EQ(shell->settings()->pages()->presentedViewController(), sheet);
}

TEST_F(ShellTest, APaneOpensInPlaceOfTheOneBeforeAndWhatThatHasPresented) {
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    const auto sheet = make<UIViewController>();
    shell->settings()->pages()->presentViewController(sheet, false, {});
    settle();
    ASSERT_TRUE(shell->openEntry("good"));
    EXPECT_EQ(screen->presentations().top(), nullptr);
    settle();
    EXPECT_FALSE(shell->settings()->pages()->presentedViewController());
    EXPECT_EQ(titles(), (Titles{"Settings", "good"}));
    const auto second = make<UIViewController>();
    shell->settings()->pages()->presentViewController(second, true, {});
    settle();
    EXPECT_EQ(shell->settings()->pages()->presentedViewController(), second);
}

TEST_F(ShellTest, SettingsCanBeEndedWhileItIsStillOpening) {
    ASSERT_TRUE(shell->openEntry("good"));
    shell->terminateSettings();
    settle();
    EXPECT_EQ(shell->app(), "home");
    shell->launchSettings();
    settle();
    EXPECT_EQ(titles(), Titles{"Settings"});
}

TEST_F(ShellTest, TappingTheIconOpensSettings) {
    auto* const touched = screen->hitTest({57, 106});
    ASSERT_NE(touched, nullptr);
    EXPECT_EQ(touched->peer().accessibility().label, "Settings");
    dynamic_cast<UIControl&>(*touched).sendActionsForControlEvents(UIControlEvents::TouchUpInside);
    settle();
    EXPECT_EQ(shell->app(), "Settings");
}

TEST_F(ShellTest, TheHomeScreenIsReachableOnceSettingsIsBehind) {
    shell->launchSettings();
    settle();
    EXPECT_NE(screen->hitTest({57, 106})->peer().accessibility().label, "Settings");
    shell->goHome();
    settle();
    EXPECT_EQ(screen->hitTest({57, 106})->peer().accessibility().label, "Settings");
}

TEST_F(ShellTest, OnATabletThePaneIsBesideTheFirstPage) {
    start(Idiom::Pad);
    shell->launchSettings();
    settle();
    EXPECT_EQ(titles(), Titles{"About"});
    ASSERT_TRUE(shell->openEntry("good"));
    settle();
    EXPECT_EQ(titles(), Titles{"good"});
    EXPECT_NEAR(shell->settings()->pages()->view().frame().origin.x, 320 + 1.0 / 3, 1e-9);
}

TEST_F(ShellTest, APlainListOpensAsAPageOfItsRows) {
    device.write(std::string(EntryList::folder) + "/Plain.plist",
                 "<plist version=\"1.0\"><dict><key>items</key><array><dict><key>cell</key>"
                 "<string>PSStaticTextCell</string><key>label</key><string>Hello</string></dict></array>"
                 "</dict></plist>");
    ASSERT_TRUE(shell->openEntry("Plain"));
    settle();
    const auto top =
        dynamicCast<PSListController>(UINavigationControllerPeer::of(*shell->settings()->pages()).top());
    ASSERT_TRUE(top);
    EXPECT_EQ(top->peer().title(), "Plain");
    const auto rows = PSListControllerPeer::of(*top).rows();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].label, "Hello");
}

TEST_F(ShellTest, TheBarsSuitWhatIsInFront) {
    auto& bars = shell->bars();
    EXPECT_EQ(bars.statusBar().alpha(), 0);
    EXPECT_EQ(bars.homeIndicator().alpha(), 0);
    shell->launchSettings();
    settle();
    EXPECT_EQ(bars.statusBar().alpha(), 1);
    EXPECT_EQ(bars.homeIndicator().alpha(), 1);
    EXPECT_TRUE(bars.whiteStatusBar().peer().isHidden());
    shell->goHome();
    settle();
    EXPECT_EQ(bars.statusBar().alpha(), 0);
    EXPECT_EQ(bars.homeIndicator().alpha(), 0);
    EXPECT_FALSE(bars.whiteStatusBar().peer().isHidden());
    shell->relaunch();
    shell->terminateSettings();
    settle();
    EXPECT_EQ(bars.homeIndicator().alpha(), 0);
}

TEST_F(ShellTest, AFingerThatDrawsSettingsUpGoesHome) {
    for (const auto idiom : {Idiom::Phone, Idiom::Pad}) {
        start(idiom);
        shell->launchSettings();
        settle();
        const auto size = screen->bounds().size;
        drag({size.width / 2, size.height - 5}, {size.width / 2, size.height / 2});
        EXPECT_EQ(shell->app(), "Settings");
        advance(200ms); // held still: it is the place that decides
        lift({size.width / 2, size.height / 2});
        EXPECT_EQ(shell->app(), "home");
        settle();
        EXPECT_NE(shell->settings(), nullptr);
    }
}

TEST_F(ShellTest, SettingsShrinksBesideTheFingerAndItsLowerEdgeStaysThere) {
    shell->launchSettings();
    settle();
    drag({195, 839}, {215, 640});
    const auto frame = frameOfSettings();
    // The first 10 of the 200 points are the ones by which a movement is told.
    EXPECT_NEAR(CGRectGetMaxY(frame), 844 - 190, 1);
    EXPECT_NEAR(frame.size.height / 844, 1 - 1.25 * 190 / 844, 0.005);
    EXPECT_NEAR(CGRectGetMidX(frame), 195 + 19, 0.5);
    drag({195, 839}, {195, 10});
    EXPECT_NEAR(frameOfSettings().size.height / 844, 0.3, 0.001) << "small, but still there";
}

TEST_F(ShellTest, AHesitantDragSpringsBack) {
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 740});
    advance(200ms);
    lift({195, 740});
    EXPECT_EQ(shell->app(), "Settings");
    settle();
    EXPECT_EQ(frameOfSettings(), screen->bounds());
}

TEST_F(ShellTest, AFlickGoesHomeFromLessAndAFingerThatTurnsBackDoesNot) {
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 740}, 6);
    lift({195, 740});
    EXPECT_EQ(shell->app(), "home");
    settle();
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 400});
    for (const auto y : {400.0, 440.0, 480.0, 520.0, 560.0}) {
        advance(16ms);
        finger.touch(TouchPhase::Moved, {195, y});
    }
    lift({195, 600});
    EXPECT_EQ(shell->app(), "Settings");
}

TEST_F(ShellTest, ADragFromElsewhereOrSidewaysDoesNotGoHome) {
    shell->launchSettings();
    settle();
    drag({195, 800}, {195, 300});
    lift({195, 300});
    settle();
    drag({195, 839}, {380, 820});
    EXPECT_EQ(frameOfSettings(), screen->bounds());
    lift({380, 820});
    EXPECT_EQ(shell->app(), "Settings");
}

TEST_F(ShellTest, TheFingerOnTheWayHomeIsNotThatOfWhatLiesBeneath) {
    shell->launchSettings();
    settle();
    const auto button = make<UIButton>();
    auto& page = shell->settings()->pages()->view();
    button->setFrame(CGRectMake(0, 800, 390, 44));
    page.addSubview(button);
    drag({195, 839}, {195, 836}, 2);
    EXPECT_TRUE(button->isTracking());
    for (const auto y : {816.0, 796.0, 776.0, 756.0, 736.0, 716.0}) {
        advance(16ms);
        finger.touch(TouchPhase::Moved, {195, y});
    }
    EXPECT_FALSE(button->isTracking());
    lift({195, 700});
    settle();
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellTest, AMenuAboveSettingsDoesNotStayAboveTheHomeScreen) {
    shell->launchSettings();
    settle();
    const std::vector<Ref<DesktopAction>> actions;
    const auto opened =
        MenuPresentation::open(make<DesktopMenu>("Menu", actions), shell->settings()->pages()->view(), {});
    settle();
    ASSERT_EQ(screen->presentations().top(), opened.get());
    shell->goHome();
    EXPECT_EQ(screen->presentations().top(), nullptr);
    settle();
    EXPECT_EQ(screen->hitTest({57, 106})->peer().accessibility().label, "Settings");
}

TEST_F(ShellTest, GoingHomeWhileAFingerDrawsSettingsTakesTheFingerAway) {
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 500});
    shell->goHome();
    settle();
    const auto small = frameOfSettings();
    EXPECT_NEAR(small.size.width, 60, 1e-6);
    finger.touch(TouchPhase::Moved, {195, 300});
    lift({195, 300});
    settle();
    EXPECT_EQ(frameOfSettings(), small);
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellTest, SettingsMayBeEndedUnderTheFinger) {
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 500});
    shell->terminateSettings();
    finger.touch(TouchPhase::Moved, {195, 300});
    lift({195, 300});
    settle();
    EXPECT_EQ(shell->app(), "home");
    EXPECT_EQ(shell->settings(), nullptr);
}

TEST_F(ShellTest, TheWayBackIsToThePageBeforeAndFromTheFirstOneHome) {
    openPane("good");
    shell->goBack();
    settle();
    EXPECT_EQ(titles(), Titles{"Settings"});
    EXPECT_EQ(shell->app(), "Settings");
    shell->goBack();
    EXPECT_EQ(shell->app(), "home");
    settle();
    shell->goBack();
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellTest, OnATabletTheWayBackFromAPaneIsHome) {
    start(Idiom::Pad);
    openPane("good");
    shell->goBack();
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellTest, OnATabletTheRowOfTheShownPaneStaysSelected) {
    start(Idiom::Pad);
    shell->launchSettings();
    settle();
    finger.touch(TouchPhase::Began, {160, 262});
    lift({160, 262});
    EXPECT_EQ(titles(), Titles{"good"});
    EXPECT_EQ(selectedLabel(), "good");
    advance(100ms);
    EXPECT_EQ(selectedLabel(), "good");
    settle();
    EXPECT_EQ(selectedLabel(), "good");
}

TEST_F(ShellTest, OnATabletTheHomeScreenIsNotSeenThroughTheDivider) {
    start(Idiom::Pad);
    shell->launchSettings();
    settle();
    Compositor compositor(*screen);
    const auto scale = screen->traits().displayScale;
    const auto color =
        compositor.render().pixel(static_cast<int>(320 * scale), static_cast<int>(600 * scale));
    // The separator's colour above that of the page.
    EXPECT_NEAR(qRed(color), 242 + (60 - 242) * 0.29, 1.5);
    EXPECT_NEAR(qBlue(color), 247 + (67 - 247) * 0.29, 1.5);
}
