#include "CodeUnderTest.h"
#include "Framework.h"
#include "Journal.h"
#include "SystemStandIns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

/// The bundle's page, made and asked as the Preferences framework makes and asks it.
class RootPageTest : public testing::Test {
protected:
    RootPageTest() { setServicesLibrary(servicesLibrary()); }

    ~RootPageTest() override {
        dismissPresented(page); // what is presented may keep the page alive
        objc_release(page);
        forgetSuites();
        refuseInitialisersOf(nullptr);
        setServicesLibrary(nullptr);
    }

    /// \param knowsWhatIsNew whether that has been shown before
    void load(bool knowsWhatIsNew = true) const {
        if (knowsWhatIsNew)
            storeValue(text("3.0.1"), "LastVersionPopupShown");
        viewOf(page);
    }

    /// The lines of the journal that hold any of the texts.
    [[nodiscard]] static Lines journalOf(std::initializer_list<std::string_view> texts) {
        Lines lines = takeJournal();
        std::erase_if(lines, [&](const std::string& line) {
            return std::ranges::none_of(texts, [&](std::string_view text) { return line.contains(text); });
        });
        return lines;
    }

    const id page = newByName("cxRootListController");
};

} // namespace

TEST_F(RootPageTest, IsMadeByNameAsASubclassOfTheFrameworksPage) {
    EXPECT_STREQ(class_getName(class_getSuperclass(object_getClass(page))), "PSListController");
    EXPECT_STREQ(class_getName(object_getClass(page)), "cxRootListController");
}

TEST_F(RootPageTest, SpecifiersAreLoadedOnceAndAreTheInheritedArrayItself) {
    EXPECT_EQ(keptSpecifiersOf(page), nullptr);
    auto* const specifiers = specifiersOf(page);
    EXPECT_EQ(
        takeJournal(),
        Lines{"-[cxRootListController loadSpecifiersFromPlistName:target:] \"Root\" cxRootListController"});
    ASSERT_NE(specifiers, nullptr);
    EXPECT_EQ(specifiers, keptSpecifiersOf(page));
    EXPECT_EQ(specifiersOf(page), specifiers);
    EXPECT_TRUE(takeJournal().empty());
    ASSERT_EQ(countOfArray(specifiers), 2U);
    EXPECT_EQ(described(perform(elementOf(specifiers, 1), "propertyForKey:", text("id"))), "\"row\"");
    EXPECT_EQ(aliveOf("PSSpecifier"), 2);
}

TEST_F(RootPageTest, RowsAreReadAndWrittenByTheFramework) {
    auto* const specifier = emptySpecifier();
    performWithTwo(specifier, "setProperty:forKey:", number(0.5), text("value"));
    EXPECT_EQ(described(readValueOf(page, specifier)), "0.5");
    setValueOf(page, number(2), specifier);
    EXPECT_EQ(takeJournal(), (Lines{"-[PSSpecifier setProperty:forKey:] 0.5 \"value\"",
                                    "-[cxRootListController readPreferenceValue:] PSSpecifier",
                                    "-[cxRootListController setPreferenceValue:specifier:] 2 PSSpecifier"}));
    EXPECT_EQ(keptSpecifiersOf(page), nullptr);
}

TEST_F(RootPageTest, ARowIsFoundByItsIdentifier) {
    specifiersOf(page);
    EXPECT_NE(perform(page, "specifierForID:", text("row")), nullptr);
    EXPECT_EQ(perform(page, "specifierForID:", text("other")), nullptr);
}

TEST_F(RootPageTest, TellsTheFrameworkTheBundleThatItsCodeIsIn) {
    EXPECT_EQ(bundlePathOf(page), folderOfCode());
}

TEST_F(RootPageTest, LoadingTheViewDoesOneThingAfterTheOther) {
    load();
    EXPECT_EQ(journalOf({"viewDidLoad", "initWithSuiteName", "-[GlintImageSwitch initWithFrame:]",
                         "setTitleView", "setRightBarButtonItems", "present"}),
              (Lines{"-[cxRootListController viewDidLoad]",
                     "-[NSUserDefaults initWithSuiteName:] \"com.orvel.corvexprefs\"",
                     "-[GlintImageSwitch initWithFrame:] {{0, 0}, {50, 30}}",
                     "-[UINavigationItem setTitleView:] GlintImageSwitch",
                     "-[UINavigationItem setRightBarButtonItems:] [UIBarButtonItem]"}));
}

TEST_F(RootPageTest, TheMasterSwitchIsInTheBarWithAllItsProperties) {
    storeValue(boolean(true), "kEnabled");
    load();
    auto* const shown = titleViewOf(page);
    ASSERT_STREQ(class_getName(object_getClass(shown)), "GlintImageSwitch");
    EXPECT_TRUE(invokeForBoolean(shown, "isOn"));
    EXPECT_TRUE(invokeForBoolean(shown, "isRounded"));
    EXPECT_EQ(frameOf(shown), CGRectMake(135, 339, 50, 30));
    const auto description = [&](const char* property) { return describedAnswer(shown, property); };
    EXPECT_EQ(description("thumbTintColor"), "rgba(0.19, 0.23, 0.33, 1)");
    EXPECT_EQ(description("onThumbTintColor"), "rgba(0.19, 0.23, 0.33, 1)");
    EXPECT_EQ(description("activeColor"), "rgba(0.07, 0.09, 0.11, 1)");
    EXPECT_EQ(description("inactiveColor"), "rgba(0.07, 0.09, 0.11, 1)");
    EXPECT_EQ(description("onTintColor"), "rgba(0.45, 0.58, 0.67, 1)");
    EXPECT_EQ(description("borderColor"), "clear");
    EXPECT_EQ(description("shadowColor"), "black");
    for (const auto* property : {"thumbImage", "onImage", "offImage"})
        EXPECT_EQ(perform(shown, property, nullptr), nullptr) << property;
    for (const auto* property : {"onLabel", "offLabel", "backgroundView", "thumbView"})
        EXPECT_NE(perform(shown, property, nullptr), nullptr) << property;
}

TEST_F(RootPageTest, TheMasterSwitchGetsItsColoursBeforeItsValue) {
    storeValue(boolean(true), "kEnabled");
    load();
    auto* const control = newWithFrame("GlintImageSwitch", CGRect());
    takeJournal();
    perform(page, "configureNavigationSwitch:", control);
    EXPECT_EQ(
        takeJournal(),
        (Lines{"-[UIView setBackgroundColor:] rgba(0.19, 0.23, 0.33, 1)",
               "-[UIView setBackgroundColor:] rgba(0.07, 0.09, 0.11, 1)", "-[CALayer setBorderColor:] clear",
               "-[CALayer setShadowColor:] black", "-[UIView setFrame:] {{21, 1}, {28, 28}}",
               "-[UIView setBackgroundColor:] rgba(0.45, 0.58, 0.67, 1)",
               "-[CALayer setBorderColor:] rgba(0.45, 0.58, 0.67, 1)",
               "-[UIView setBackgroundColor:] rgba(0.19, 0.23, 0.33, 1)", "-[UIImageView setAlpha:] 1",
               "-[UIImageView setAlpha:] 0", "-[UILabel setAlpha:] 1", "-[UILabel setAlpha:] 0"}));
    objc_release(control);
}

TEST_F(RootPageTest, AChangedValueReachesThePageAndIsStored) {
    load();
    auto* const control = titleViewOf(page);
    takeJournal();
    EXPECT_TRUE(touchDown(control, 10));
    touchUp(control, 10);
    EXPECT_EQ(described(storedValue("kEnabled")), "1");
    EXPECT_EQ(journalOf({"sendActions", "SuiteDefaults"}),
              (Lines{"-[GlintImageSwitch sendActionsForControlEvents:] 4096",
                     "-[SuiteDefaults setObject:forKey:] 1 \"kEnabled\"", "-[SuiteDefaults synchronize]"}));
    finishAnimations();
    touchDown(control, 10);
    touchUp(control, 10);
    EXPECT_EQ(described(storedValue("kEnabled")), "0");
}

TEST_F(RootPageTest, TheTargetIsThePageItself) {
    load();
    EXPECT_EQ(journalOf({"addTarget"}), Lines{("-[GlintImageSwitch addTarget:action:forControlEvents:] "
                                               "cxRootListController switchChanged: 4096")});
}

TEST_F(RootPageTest, TheMenuIsBuiltInOrder) {
    load();
    EXPECT_EQ(
        journalOf({"systemImage", "RenderingMode", "UIAction", "UIMenu", "UIBarButtonItem "}),
        (Lines{
            "+[UIImage systemImageNamed:] \"gear.badge.checkmark\"", "-[UIImage imageWithRenderingMode:] 2",
            ("+[UIAction actionWithTitle:image:identifier:handler:] \"Apply\" <gear.badge.checkmark 2> nil "
             "handler"),
            "+[UIImage systemImageNamed:] \"gear.badge.xmark\"",
            ("+[UIAction actionWithTitle:image:identifier:handler:] \"Reset Settings\" <gear.badge.xmark 0> "
             "nil handler"),
            "-[UIAction setAttributes:] 2", "+[UIImage systemImageNamed:] \"gear.badge\"",
            "+[UIMenu menuWithTitle:children:] \"\" [UIAction, UIAction]",
            "-[UIBarButtonItem initWithImage:menu:] <gear.badge 0> UIMenu",
            "-[UIBarButtonItem setTintColor:] systemRed"}));
}

TEST_F(RootPageTest, ApplySuspendsTheApplicationAndEndsItHalfASecondLater) {
    load();
    takeJournal();
    choose(menuActionOf(page, 0));
    EXPECT_EQ(takeJournal(), (Lines{"-[UIApplication suspend]", "main queue: after 500000000"}));
    EXPECT_EQ(runWaitingWork(), 1U);
    EXPECT_EQ(
        takeJournal(),
        (Lines{"dlopen /System/Library/PrivateFrameworks/BackBoardServices.framework/BackBoardServices 1",
               "terminate com.apple.Preferences 1 0 null", "dlclose"}));
}

TEST_F(RootPageTest, WithoutTheServiceNothingIsEnded) {
    setServicesLibrary(nullptr);
    perform(page, "terminateSettingsUsingBKS", nullptr);
    EXPECT_EQ(
        takeJournal(),
        Lines{"dlopen /System/Library/PrivateFrameworks/BackBoardServices.framework/BackBoardServices 1"});
}

TEST_F(RootPageTest, TheDelayIsTheOneThatIsAskedFor) {
    invokeWithDouble(page, "terminateSettingsAfterDelay:", 2.5);
    EXPECT_EQ(takeJournal(), Lines{"main queue: after 2500000000"});
    runWaitingWork();
}

TEST_F(RootPageTest, ThePageStaysAliveUntilTheEndIsDone) {
    auto* const other = newByName("cxRootListController");
    perform(other, "closeSettings", nullptr);
    objc_release(other);
    EXPECT_EQ(aliveOf("cxRootListController"), 2);
    runWaitingWork();
    EXPECT_EQ(aliveOf("cxRootListController"), 1);
}

TEST_F(RootPageTest, ResetAsksFirst) {
    load();
    takeJournal();
    choose(menuActionOf(page, 1));
    EXPECT_EQ(
        takeJournal(),
        (Lines{"sound 1519",
               ("+[UIAlertController alertControllerWithTitle:message:preferredStyle:] \"Reset CX Settings\" "
                "\"Do you want to reset settings?\" 1"),
               "+[UIAlertAction actionWithTitle:style:handler:] \"Cancel\" 1",
               "-[UIAlertController addAction:] \"Cancel\"",
               "+[UIAlertAction actionWithTitle:style:handler:] \"Confirm\" 2 handler",
               "-[UIAlertController addAction:] \"Confirm\"",
               "-[cxRootListController presentViewController:animated:completion:] UIAlertController 1"}));
}

TEST_F(RootPageTest, ConfirmingRemovesAllSettingsReloadsAndEndsSettings) {
    storeValue(text("kept by nobody"), "unknown key");
    load();
    choose(menuActionOf(page, 1));
    takeJournal();
    answerAlertOf(page, 1);
    auto lines = takeJournal();
    EXPECT_EQ(
        (Lines{lines.begin(), lines.begin() + 3}),
        (Lines{"-[SuiteDefaults removeObjectForKey:] \"LastVersionPopupShown\"",
               "-[SuiteDefaults removeObjectForKey:] \"unknown key\"", "-[SuiteDefaults synchronize]"}));
    const auto removals = std::ranges::count_if(lines, [](const std::string& line) {
        return line.starts_with("log: Error removing file at path /var/jb/");
    });
    EXPECT_EQ(removals, 4);
    EXPECT_EQ((Lines{lines.end() - 3, lines.end()}),
              (Lines{"-[cxRootListController reloadSpecifiers]", "-[UIApplication suspend]",
                     "main queue: after 500000000"}));
    EXPECT_EQ(described(storedValue("unknown key")), "nil");
    runWaitingWork();
}

TEST_F(RootPageTest, OpensThePageThatTheSenderNames) {
    auto* const navigation = newByName("UINavigationController");
    showPage(navigation, page);
    auto* const button = newByName("TweakButton");
    perform(button, "setIdentifier:", text("cxLabelController"));
    takeJournal();
    perform(page, "openController:", button);
    EXPECT_EQ(
        takeJournal(),
        (Lines{"sound 1519", "-[UINavigationController pushViewController:animated:] cxLabelController 1"}));
    objc_release(button);
    objc_release(navigation);
    EXPECT_EQ(aliveOf("cxLabelController"), 0);
}

TEST_F(RootPageTest, ANameThatNoPageHasIsLogged) {
    auto* const button = newByName("TweakButton");
    takeJournal();
    perform(page, "openController:", button);
    perform(button, "setIdentifier:", text("NoSuchPage"));
    perform(page, "openController:", button);
    EXPECT_EQ(takeJournal(), (Lines{"sound 1519", "log: Error: Class (null) could not be initialized.",
                                    "sound 1519", "log: Error: Class NoSuchPage could not be initialized."}));
    objc_release(button);
}

TEST_F(RootPageTest, WhatIsNewIsShownOnceOnASheet) {
    load(false);
    auto lines = takeJournal();
    const auto begin = std::ranges::find(
        lines, "-[OBWelcomeController initWithTitle:detailText:icon:] \"Corvex\" \"3.0.1\" <gear 0>");
    ASSERT_NE(begin, lines.end());
    const Lines iconSearch{"+[UIImage imageWithContentsOfFile:] "
                           "\"/var/jb/Library/PreferenceBundles/corvexPrefs.bundle/icon.png\"",
                           "+[UIImage systemImageNamed:] \"gear\""};
    ASSERT_GE(begin - lines.begin(), 2);
    EXPECT_EQ((Lines{begin - 2, begin}), iconSearch);
    lines.erase(lines.begin(), begin + 1);
    ASSERT_EQ(lines.size(), 20U);
    EXPECT_EQ(lines[0], "+[UIImage systemImageNamed:] \"checkmark.circle.fill\"");
    EXPECT_EQ(lines[6],
              ("-[OBWelcomeController addBulletedListItemWithTitle:description:image:] \"Roothide Support\" "
               "\"Corvex now supports Roothide\" <checkmark.circle.fill 0>"));
    EXPECT_EQ(
        (Lines{lines.begin() + 7, lines.end()}),
        (Lines{"-[UIView initWithFrame:] {{0, 0}, {0, 0}}", "-[OBWelcomeController viewDidLoad]",
               "+[_UIBackdropViewSettings settingsForStyle:] 2",
               ("-[_UIBackdropView initWithFrame:autosizesToFitSuperview:settings:] {{0, 0}, {0, 0}} 1 "
                "_UIBackdropViewSettings"),
               "-[_UIBackdropView initWithFrame:] {{0, 0}, {0, 0}}", "-[_UIBackdropView setClipsToBounds:] 1",
               "-[UIView insertSubview:atIndex:] _UIBackdropView 0", "-[UIView setBackgroundColor:] clear",
               "-[UIView setTintColor:] yellow", "-[OBWelcomeController setModalPresentationStyle:] 1",
               "-[cxRootListController presentViewController:animated:completion:] OBWelcomeController 1",
               "-[SuiteDefaults setObject:forKey:] \"3.0.1\" \"LastVersionPopupShown\"",
               "-[SuiteDefaults synchronize]"}));
    EXPECT_EQ(described(storedValue("LastVersionPopupShown")), "\"3.0.1\"");
}

TEST_F(RootPageTest, WithoutTheSheetNothingIsShown) {
    refuseInitialisersOf("OBWelcomeController");
    load(false);
    EXPECT_EQ(journalOf({"OBWelcomeController", "Backdrop", "LastVersionPopupShown"}),
              (Lines{"-[OBWelcomeController initWithTitle:detailText:icon:] \"Corvex\" \"3.0.1\" <gear 0>",
                     "-[SuiteDefaults setObject:forKey:] \"3.0.1\" \"LastVersionPopupShown\""}));
    EXPECT_EQ(presentedBy(page), nullptr);
    EXPECT_EQ(aliveOf("OBWelcomeController"), 0);
}

TEST_F(RootPageTest, WithoutItsBackdropTheSheetIsShownAllTheSame) {
    refuseInitialisersOf("_UIBackdropView");
    load(false);
    EXPECT_EQ(journalOf({"insertSubview", "setClipsToBounds:] 1", "OBWelcomeController 1"}),
              Lines{("-[cxRootListController presentViewController:animated:completion:] "
                     "OBWelcomeController 1")});
    EXPECT_EQ(aliveOf("_UIBackdropView"), 0);
}

TEST_F(RootPageTest, AnotherSheetTakesTheFirstOnesPlace) {
    load(false);
    auto* const first = presentedBy(page);
    takeJournal();
    perform(page, "showWtfChangedInThisVersion", nullptr);
    EXPECT_EQ(takeJournal().front(), "-[OBWelcomeController dismissViewControllerAnimated:completion:] 0");
    EXPECT_NE(presentedBy(page), first);
}

TEST_F(RootPageTest, WhatIsKeptForOthersIsKept) {
    load();
    {
        const AutoreleasePool pool;
        auto* const item = newByName("UISwitch");
        perform(page, "setToggleSwitch:", item);
        objc_release(item);
        EXPECT_EQ(perform(page, "toggleSwitch", nullptr), item);
        perform(page, "setToggleSwitch:", nullptr);
        EXPECT_EQ(perform(page, "toggleSwitch", nullptr), nullptr);
    }
    EXPECT_EQ(aliveOf("UISwitch"), 0);
}

TEST_F(RootPageTest, AnObjectOfAnotherClassArrivesAsNone) {
    perform(page, "setToggleSwitch:", emptySpecifier());
    EXPECT_EQ(perform(page, "toggleSwitch", nullptr), nullptr);
}

TEST_F(RootPageTest, WhateverObjectComesIsToldApartAndLeftAsItWas) {
    for (const auto* const name : {"CAGradientLayer",
                                   "CALayer",
                                   "NSMutableSet",
                                   "PSControlTableCell",
                                   "PSListController",
                                   "PSSwitchTableCell",
                                   "UIApplication",
                                   "UIButton",
                                   "UIControl",
                                   "UIEvent",
                                   "UILabel",
                                   "UIMenu",
                                   "UINavigationBar",
                                   "UINavigationController",
                                   "UIResponder",
                                   "UIScrollView",
                                   "UIStackView",
                                   "UITableView",
                                   "UITableViewCell",
                                   "UITextField",
                                   "UITouch",
                                   "UIViewController",
                                   "NSLayoutDimension",
                                   "NSLayoutXAxisAnchor",
                                   "UIAction",
                                   "UIAlertController",
                                   "UIBarButtonItem",
                                   "UIBezierPath",
                                   "UIDevice",
                                   "UIFont",
                                   "UILayoutGuide",
                                   "UINavigationItem",
                                   "UIPopoverPresentationController",
                                   "UITapGestureRecognizer",
                                   "UIVisualEffectView"}) {
        const auto before = aliveOf(name);
        {
            const AutoreleasePool pool;
            auto* const object = newByName(name);
            ASSERT_NE(object, nullptr) << name;
            perform(page, "setToggleSwitch:", object);
            EXPECT_EQ(perform(page, "toggleSwitch", nullptr), nullptr) << name;
            objc_release(object);
        }
        EXPECT_EQ(aliveOf(name), before) << name;
    }
}

TEST(RootPageEndTest, APageThatEndsDismissesNothing) {
    auto* const page = newByName("cxRootListController");
    {
        const AutoreleasePool pool;
        viewOf(page);
    }
    EXPECT_EQ(aliveOf("OBWelcomeController"), 1);
    takeJournal();
    objc_release(page);
    EXPECT_EQ(aliveOf("cxRootListController"), 0);
    EXPECT_EQ(aliveOf("OBWelcomeController"), 0);
    EXPECT_TRUE(takeJournal().empty());
    forgetSuites();
}

TEST(RootPageEndTest, NothingIsLeftAliveOfAPageThatHasDoneAll) {
    {
        const AutoreleasePool pool;
        auto* const page = newByName("cxRootListController");
        viewOf(page);
        specifiersOf(page);
        touchDown(titleViewOf(page), 10);
        touchUp(titleViewOf(page), 40);
        finishAnimations();
        choose(menuActionOf(page, 0));
        choose(menuActionOf(page, 1));
        answerAlertOf(page, 1);
        runWaitingWork();
        objc_release(page);
        forgetSuites();
    }
    for (const auto* name : {"cxRootListController",
                             "GlintImageSwitch",
                             "UIView",
                             "UIControl",
                             "UIImageView",
                             "UILabel",
                             "CALayer",
                             "UIColor",
                             "UIImage",
                             "UIBezierPath",
                             "UIAction",
                             "UIMenu",
                             "UIBarButtonItem",
                             "UINavigationItem",
                             "UIAlertController",
                             "UIAlertAction",
                             "OBWelcomeController",
                             "_UIBackdropView",
                             "_UIBackdropViewSettings",
                             "PSSpecifier",
                             "SuiteDefaults",
                             "UITouch",
                             "UIEvent"})
        EXPECT_EQ(aliveOf(name), 0) << name;
}
