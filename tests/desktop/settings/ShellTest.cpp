#include "Shell.h"

#include "CALayerPeer.h"
#include "EntryList.h"
#include "PSListControllerPeer.h"
#include "RectGeometry.h"
#include "ShellFixture.h"
#include "UIKit/UIApplication.h"
#include "UIKit/UITextField.h"
#include "menus/DesktopMenu.h"
#include "menus/MenuPresentation.h"
#include "navigation/UINavigationControllerPeer.h"
#include "screen/Compositor.h"
#include "tables/UITableViewCellPeer.h"
#include "views/UILabelPeer.h"

namespace {

class ShellTest : public ShellFixture {
protected:
    [[nodiscard]] std::string topClass() const { return topPage()->isa().name(); }

    /// Of the first page; "" when none is selected.
    [[nodiscard]] std::string selectedLabel() const {
        auto& columns = shell->settings()->rootViewController()->peer();
        const auto first = dynamicCast<UINavigationController>(columns.children().front());
        const auto page = dynamicCast<PSListController>(peerOf<UINavigationControllerPeer>(*first).top());
        auto& table = peerOf<PSListControllerPeer>(*page).table();
        const auto row = table.selectedRow();
        if (!row)
            return "";
        return *peerOf<UILabelPeer>(peerOf<UITableViewCellPeer>(*table.cellForRow(*row)).textLabel()).text();
    }
};

/// As it is shown.
void expectAtIcon(const UIWindow& window) {
    const auto frame = window.layer().peer().shownToSuperlayer()(window.bounds());
    EXPECT_NEAR(frame.origin.x, 27, 0.5);
    EXPECT_NEAR(frame.origin.y, 76, 0.5);
    EXPECT_NEAR(frame.size.width, 60, 1);
    EXPECT_NEAR(frame.size.height, 60, 1);
}

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
    const auto top = dynamicCast<PSListController>(topPage());
    ASSERT_TRUE(top);
    Titles labels;
    for (const auto& row : peerOf<PSListControllerPeer>(*top).rows()) {
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

TEST_F(ShellTest, ATapOnTheIconThatSettingsShrinksToOpensItAgain) {
    shell->launchSettings();
    settle();
    shell->goHome();
    advance(std::chrono::milliseconds(300)); // the icon is seen, and is still on its way
    const auto frame = frameOfSettings();
    finger.touch(TouchPhase::Began, {CGRectGetMidX(frame), CGRectGetMidY(frame)});
    finger.touch(TouchPhase::Ended, {CGRectGetMidX(frame), CGRectGetMidY(frame)});
    EXPECT_EQ(shell->app(), "Settings");
    settle();
    EXPECT_EQ(frameOfSettings(), screen->bounds());
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
    const auto top = dynamicCast<PSListController>(topPage());
    ASSERT_TRUE(top);
    EXPECT_EQ(top->peer().title(), "Plain");
    const auto rows = peerOf<PSListControllerPeer>(*top).rows();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].label, "Hello");
}

TEST_F(ShellTest, TheBarsSuitWhatIsInFront) {
    auto& bars = shell->bars();
    const auto suitApplication = [&bars] {
        bars.refresh();
        const bool isWhite = !bars.whiteStatusBar().peer().isHidden();
        EXPECT_EQ(bars.statusBar().peer().isHidden(), isWhite);
        EXPECT_EQ(bars.homeIndicator().peer().isHidden(), isWhite);
        return !isWhite;
    };
    EXPECT_FALSE(suitApplication());
    shell->launchSettings();
    settle();
    EXPECT_TRUE(suitApplication());
    shell->goHome();
    settle();
    EXPECT_FALSE(suitApplication());
    shell->relaunch();
    shell->terminateSettings();
    settle();
    EXPECT_FALSE(suitApplication());
}

TEST_F(ShellTest, SettingsGrowsFromItsIconAndNothingShinesThroughBoth) {
    const auto alpha = [](const UIWindow& window) {
        return window.layer().peer().shownValue(LayerProperty::Opacity)[0];
    };
    shell->launchSettings();
    const auto& settings = *screen->windows().at(1);
    const auto& icon = *screen->windows().at(2);
    expectAtIcon(settings);
    for (auto time = 0; time < 500; time += 10) {
        EXPECT_TRUE(alpha(settings) == 1 || alpha(icon) == 1) << time;
        EXPECT_EQ(settings.layer().cornerRadius(), screen->cornerRadius()) << time;
        advance(std::chrono::milliseconds(10));
    }
    settle();
    EXPECT_EQ(alpha(icon), 0);
    EXPECT_EQ(settings.layer().cornerRadius(), 0);
    shell->goHome();
    for (auto time = 0; time < 500; time += 10) {
        EXPECT_TRUE(alpha(settings) == 1 || alpha(icon) == 1) << time;
        EXPECT_EQ(settings.layer().cornerRadius(), screen->cornerRadius()) << time;
        advance(std::chrono::milliseconds(10));
    }
    expectAtIcon(icon);
    settle();
    EXPECT_TRUE(settings.peer().isHidden());
    EXPECT_TRUE(icon.peer().isHidden());
}

TEST_F(ShellTest, TheIconIsInItsPlaceOnlyWhileSettingsIsNotSeen) {
    const auto isIconShown = [this] {
        const auto* const home =
            dynamic_cast<HomeView*>(screen->windows().at(0)->peer().subviews().front().get());
        return !home->peer().subviews().back()->peer().subviews().front()->peer().isHidden();
    };
    EXPECT_TRUE(isIconShown());
    shell->launchSettings();
    EXPECT_FALSE(isIconShown());
    settle();
    shell->goHome();
    EXPECT_FALSE(isIconShown());
    settle();
    EXPECT_TRUE(isIconShown());
    shell->relaunch();
    EXPECT_FALSE(isIconShown());
    shell->terminateSettings();
    EXPECT_TRUE(isIconShown());
}

TEST_F(ShellTest, TheIconsNameComesOnceSettingsIsAsSmallAsTheIcon) {
    const auto shownAlpha = [this] {
        return nameOfIcon().layer().peer().shownValue(LayerProperty::Opacity)[0];
    };
    EXPECT_EQ(shownAlpha(), 1);
    shell->launchSettings();
    advance(std::chrono::milliseconds(40));
    EXPECT_EQ(shownAlpha(), 0);
    settle();
    EXPECT_EQ(shownAlpha(), 0);
    shell->goHome();
    advance(std::chrono::milliseconds(300));
    EXPECT_EQ(shownAlpha(), 0);
    settle();
    EXPECT_EQ(shownAlpha(), 1);
    shell->launchSettings();
    shell->terminateSettings();
    EXPECT_LE(shownAlpha(), 1);
    settle();
    EXPECT_EQ(shownAlpha(), 1);
}

TEST_F(ShellTest, TheStatusBarIsWhiteUntilSettingsHasComeBeneathIt) {
    const auto isShown = [this](const StatusBarView& bar) {
        shell->bars().refresh();
        return !bar.peer().isHidden();
    };
    const auto& dark = shell->bars().statusBar();
    const auto& white = shell->bars().whiteStatusBar();
    shell->launchSettings();
    advance(std::chrono::milliseconds(80));
    EXPECT_TRUE(isShown(white));
    EXPECT_FALSE(isShown(dark));
    advance(std::chrono::milliseconds(120));
    EXPECT_TRUE(isShown(dark));
    settle();
    EXPECT_FALSE(isShown(white));
    EXPECT_TRUE(isShown(dark));
    shell->goHome();
    advance(std::chrono::milliseconds(110));
    EXPECT_TRUE(isShown(white));
    EXPECT_FALSE(isShown(dark));
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
    shell->launchSettings();
    settle();
    EXPECT_EQ(screen->presentations().top(), nullptr) << "nor come back with Settings";
}

TEST_F(ShellTest, WhatIsTypedAtTheHomeScreenIsNoFieldsInSettings) {
    shell->launchSettings();
    settle();
    const auto field = make<UITextField>();
    shell->settings()->pages()->view().addSubview(field);
    field->setFrame(CGRectMake(20, 200, 200, 34));
    ASSERT_TRUE(field->becomeFirstResponder());
    settle();
    EXPECT_GT(screen->keyboardHeight(), 0);
    shell->goHome();
    EXPECT_EQ(screen->firstResponder().input(), nullptr);
    settle();
    EXPECT_EQ(screen->keyboardHeight(), 0);
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
    finger.touch(TouchPhase::Ended, {160, 262});
    EXPECT_EQ(titles(), Titles{"good"});
    EXPECT_EQ(selectedLabel(), "good");
    advance(std::chrono::milliseconds(100));
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
