// Every method that the pane's page and its switch add to their classes, called as Objective-C calls it.

#include "Framework.h"
#include "Journal.h"
#include "SystemStandIns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <ranges>
#include <set>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

/// What a method does, in order, among whatever else it does.
struct Effect {
    const char* selector;
    Lines messages;
};

void PrintTo(const Effect& effect, std::ostream* stream) {
    *stream << effect.selector;
}

/// A property, and the class of what it holds.
struct Accessors {
    const char* className;
    const char* getter;
    const char* setter;
    const char* valueClass;
};

void PrintTo(const Accessors& accessors, std::ostream* stream) {
    *stream << accessors.className << " " << accessors.getter;
}

const std::vector<Effect> effects{
    {"specifiers",
     {"-[cxRootListController loadSpecifiersFromPlistName:target:] \"Root\" cxRootListController"}},
    {"viewDidLoad",
     {"-[cxRootListController viewDidLoad]", "-[UINavigationItem setTitleView:] GlintImageSwitch"}},
    {"setupPreferences", {"-[NSUserDefaults initWithSuiteName:] \"com.orvel.corvexprefs\""}},
    {"setupNavigationSwitch", {"-[UINavigationItem setTitleView:] GlintImageSwitch"}},
    {"createNavigationSwitch",
     {"-[GlintImageSwitch initWithFrame:] {{0, 0}, {50, 30}}", "-[GlintImageSwitch setCenter:] {160, 354}",
      "-[GlintImageSwitch addTarget:action:forControlEvents:] cxRootListController switchChanged: 4096",
      "-[UIView addSubview:] GlintImageSwitch"}},
    {"setupButtonMenu", {"-[UINavigationItem setRightBarButtonItems:] [UIBarButtonItem]"}},
    {"checkAndShowChangelogIfNeeded",
     {"-[cxRootListController presentViewController:animated:completion:] OBWelcomeController 1",
      "-[SuiteDefaults setObject:forKey:] \"3.0.1\" \"LastVersionPopupShown\""}},
    {"saveCurrentVersion",
     {"-[SuiteDefaults setObject:forKey:] \"3.0.1\" \"LastVersionPopupShown\"",
      "-[SuiteDefaults synchronize]"}},
    {"showWtfChangedInThisVersion",
     {"-[OBWelcomeController setModalPresentationStyle:] 1",
      "-[cxRootListController presentViewController:animated:completion:] OBWelcomeController 1"}},
    {"resetSettings",
     {"sound 1519",
      "-[cxRootListController presentViewController:animated:completion:] UIAlertController 1"}},
    {"createResetAlert",
     {"+[UIAlertController alertControllerWithTitle:message:preferredStyle:] \"Reset CX Settings\" "
      "\"Do you want to reset settings?\" 1",
      "-[UIAlertController addAction:] \"Cancel\"", "-[UIAlertController addAction:] \"Confirm\""}},
    {"createCancelAction", {"+[UIAlertAction actionWithTitle:style:handler:] \"Cancel\" 1"}},
    {"createConfirmAction", {"+[UIAlertAction actionWithTitle:style:handler:] \"Confirm\" 2 handler"}},
    {"performReset",
     {"-[SuiteDefaults removeObjectForKey:] \"kEnabled\"", "-[SuiteDefaults synchronize]",
      "-[cxRootListController reloadSpecifiers]", "-[UIApplication suspend]"}},
    {"clearUserDefaults",
     {"-[SuiteDefaults removeObjectForKey:] \"kEnabled\"", "-[SuiteDefaults synchronize]"}},
    {"finalizeReset",
     {"-[cxRootListController reloadSpecifiers]", "-[UIApplication suspend]", "main queue: after 500000000"}},
    {"closeSettings", {"-[UIApplication suspend]", "main queue: after 500000000"}},
    {"minimizeSettings", {"-[UIApplication suspend]"}},
    {"terminateSettingsUsingBKS",
     {"dlopen /System/Library/PrivateFrameworks/BackBoardServices.framework/BackBoardServices 1",
      "terminate com.apple.Preferences 1 0 null", "dlclose"}}};

const std::vector<Accessors> accessors{
    {"cxRootListController", "respringButton", "setRespringButton:", "UIBarButtonItem"},
    {"cxRootListController", "toggleSwitch", "setToggleSwitch:", "UISwitch"},
    {"cxRootListController", "popupViewController", "setPopupViewController:", "UIViewController"},
    {"GlintImageSwitch", "activeColor", "setActiveColor:", "UIColor"},
    {"GlintImageSwitch", "inactiveColor", "setInactiveColor:", "UIColor"},
    {"GlintImageSwitch", "onTintColor", "setOnTintColor:", "UIColor"},
    {"GlintImageSwitch", "borderColor", "setBorderColor:", "UIColor"},
    {"GlintImageSwitch", "thumbTintColor", "setThumbTintColor:", "UIColor"},
    {"GlintImageSwitch", "onThumbTintColor", "setOnThumbTintColor:", "UIColor"},
    {"GlintImageSwitch", "shadowColor", "setShadowColor:", "UIColor"},
    {"GlintImageSwitch", "thumbImage", "setThumbImage:", "UIImage"},
    {"GlintImageSwitch", "onImage", "setOnImage:", "UIImage"},
    {"GlintImageSwitch", "offImage", "setOffImage:", "UIImage"},
    {"TweakCustomCell", "leftIconImage", "setLeftIconImage:", "UIImage"},
    {"TweakCustomCell", "middleIconImage", "setMiddleIconImage:", "UIImage"},
    {"TweakCustomCell", "rightIconImage", "setRightIconImage:", "UIImage"}};

/// Those that the tests below call by name.
const std::map<std::string, std::set<std::string>> calledByName{
    {"cxRootListController",
     {"configureNavigationSwitch:", "switchChanged:", "openController:",
      "addChangelogItemsToController:withImage:", "removePreferenceFiles", "terminateSettingsAfterDelay:"}},
    {"GlintImageSwitch",
     {"isOn", "setOn:", "setOn:animated:", "showOnAnimated:", "showOffAnimated:", "isRounded",
      "setRounded:", "onLabel", "offLabel", "backgroundView", "thumbView"}}};

/// What the frameworks call by themselves, and every page and every control of ours answers.
const std::map<std::string, std::set<std::string>> calledByTheFrameworks{
    {"cxRootListController",
     {"becomeFirstResponder", "bundle", "dealloc", "init", "readPreferenceValue:", "reloadSpecifiers",
      "setPreferenceValue:specifier:", "tableView:heightForRowAtIndexPath:"}},
    {"GlintImageSwitch",
     {"becomeFirstResponder", "beginTrackingWithTouch:withEvent:", "cancelTrackingWithEvent:",
      "continueTrackingWithTouch:withEvent:", "dealloc", "didMoveToSuperview",
      "endTrackingWithTouch:withEvent:", "init", "initWithCoder:", "initWithFrame:", "layoutSubviews",
      "tintColorDidChange"}}};

bool areInOrder(const Lines& lines, const Lines& journal) {
    auto rest = std::ranges::subrange(journal);
    for (const auto& line : lines) {
        const auto found = std::ranges::find(rest, line);
        if (found == rest.end())
            return false;
        rest = {std::next(found), rest.end()};
    }
    return true;
}

/// A page that has opened its preferences, in which the master switch is on.
class PublishedMethodsTest : public testing::Test {
protected:
    PublishedMethodsTest() {
        setServicesLibrary(servicesLibrary());
        storeValue(boolean(true), "kEnabled");
        perform(page, "setupPreferences", nullptr);
        takeJournal();
    }

    ~PublishedMethodsTest() override {
        runWaitingWork();
        finishAnimations();
        dismissPresented(page);
        objc_release(page);
        forgetSuites();
        setServicesLibrary(nullptr);
    }

    const id page = newByName("cxRootListController");
};

class MethodEffectTest : public PublishedMethodsTest, public testing::WithParamInterface<Effect> {};

class AccessorsTest : public testing::TestWithParam<Accessors> {};

std::string nameOfEffect(const testing::TestParamInfo<Effect>& test) {
    return test.param.selector;
}

std::string nameOfAccessors(const testing::TestParamInfo<Accessors>& test) {
    return std::string(test.param.className) + test.param.getter;
}

} // namespace

TEST_P(MethodEffectTest, IsHadWhenObjectiveCCalls) {
    perform(page, GetParam().selector, nullptr);
    const auto journal = takeJournal();
    EXPECT_TRUE(areInOrder(GetParam().messages, journal)) << testing::PrintToString(journal);
}

INSTANTIATE_TEST_SUITE_P(Methods, MethodEffectTest, testing::ValuesIn(effects), nameOfEffect);

TEST_P(AccessorsTest, KeepTheVeryObjectUntilAnotherIsSet) {
    const auto& [className, getter, setter, valueClass] = GetParam();
    const auto before = aliveOf(valueClass);
    {
        const AutoreleasePool pool;
        auto* const owner = newByName(className);
        auto* const value = newByName(valueClass);
        perform(owner, setter, value);
        objc_release(value);
        EXPECT_EQ(perform(owner, getter, nullptr), value);
        perform(owner, setter, nullptr);
        EXPECT_EQ(perform(owner, getter, nullptr), nullptr);
        objc_release(owner);
    }
    EXPECT_EQ(aliveOf(valueClass), before);
}

INSTANTIATE_TEST_SUITE_P(Properties, AccessorsTest, testing::ValuesIn(accessors), nameOfAccessors);

TEST_F(PublishedMethodsTest, TheFilesAreRemovedOneAfterTheOther) {
    perform(page, "removePreferenceFiles", nullptr);
    EXPECT_EQ(std::ranges::count_if(takeJournal(),
                                    [](const std::string& line) {
                                        return line.starts_with(
                                            "log: Error removing file at path /var/jb/var/mobile/Library/");
                                    }),
              4);
}

TEST_F(PublishedMethodsTest, AnySwitchIsConfiguredAndItsChangesAreStored) {
    auto* const control = newByName("GlintImageSwitch");
    perform(page, "configureNavigationSwitch:", control);
    EXPECT_TRUE(invokeForBoolean(control, "isOn"));
    invokeWithBooleans(control, "setOn:", false, false);
    takeJournal();
    perform(page, "switchChanged:", control);
    EXPECT_EQ(takeJournal(),
              (Lines{"-[SuiteDefaults setObject:forKey:] 0 \"kEnabled\"", "-[SuiteDefaults synchronize]"}));
    objc_release(control);
}

TEST_F(PublishedMethodsTest, ItemsAreAddedToAnySheetWithAnyImage) {
    auto* const sheet = newByName("OBWelcomeController");
    auto* const image = newByName("UIImage");
    performWithTwo(page, "addChangelogItemsToController:withImage:", sheet, image);
    const auto journal = takeJournal();
    EXPECT_EQ(std::ranges::count_if(journal,
                                    [](const std::string& line) {
                                        return line.starts_with(
                                            "-[OBWelcomeController addBulletedListItemWithTitle:");
                                    }),
              6);
    objc_release(image);
    objc_release(sheet);
}

TEST_F(PublishedMethodsTest, TheEndIsDelayed) {
    invokeWithDouble(page, "terminateSettingsAfterDelay:", 0.25);
    EXPECT_EQ(takeJournal(), Lines{"main queue: after 250000000"});
}

TEST_F(PublishedMethodsTest, NothingInThePlaceOfAnObjectIsHarmless) {
    perform(page, "openController:", nullptr);
    EXPECT_EQ(takeJournal(), (Lines{"sound 1519", "log: Error: Class (null) could not be initialized."}));
    perform(page, "configureNavigationSwitch:", nullptr);
    performWithTwo(page, "addChangelogItemsToController:withImage:", nullptr, nullptr);
    takeJournal();
    perform(page, "switchChanged:", nullptr);
    EXPECT_EQ(takeJournal(),
              (Lines{"-[SuiteDefaults setObject:forKey:] 0 \"kEnabled\"", "-[SuiteDefaults synchronize]"}));
}

TEST_F(PublishedMethodsTest, ThePreferencesAreOpenedByWhateverNeedsThemFirst) {
    auto* const other = newByName("cxRootListController");
    perform(other, "clearUserDefaults", nullptr);
    EXPECT_TRUE(areInOrder({"-[NSUserDefaults initWithSuiteName:] \"com.orvel.corvexprefs\"",
                            "-[SuiteDefaults removeObjectForKey:] \"kEnabled\""},
                           takeJournal()));
    objc_release(other);
}

TEST_F(PublishedMethodsTest, ASwitchIsTurnedByItsMethods) {
    auto* const control = newByName("GlintImageSwitch");
    const auto isOnAfter = [&](const char* selector, bool first, bool second) {
        takeJournal();
        invokeWithBooleans(control, selector, first, second);
        return invokeForBoolean(control, "isOn");
    };
    const auto wasAnimated = [] {
        return std::ranges::any_of(takeJournal(),
                                   [](const std::string& line) { return line.contains("animate"); });
    };
    EXPECT_TRUE(isOnAfter("setOn:", true, false));
    EXPECT_FALSE(isOnAfter("setOn:animated:", false, false));
    EXPECT_FALSE(wasAnimated());
    EXPECT_TRUE(isOnAfter("setOn:animated:", true, true));
    EXPECT_TRUE(wasAnimated());
    finishAnimations();
    invokeWithBooleans(control, "showOffAnimated:", false, false);
    EXPECT_FALSE(wasAnimated());
    invokeWithBooleans(control, "showOnAnimated:", true, false);
    EXPECT_TRUE(wasAnimated());
    finishAnimations();
    EXPECT_TRUE(invokeForBoolean(control, "isRounded"));
    for (const bool rounded : {false, true}) {
        invokeWithBooleans(control, "setRounded:", rounded, false);
        EXPECT_EQ(invokeForBoolean(control, "isRounded"), rounded);
    }
    objc_release(control);
}

TEST_F(PublishedMethodsTest, ASwitchShowsItsParts) {
    auto* const control = newByName("GlintImageSwitch");
    for (const auto* const label : {"onLabel", "offLabel"})
        EXPECT_STREQ(class_getName(object_getClass(perform(control, label, nullptr))), "UILabel");
    for (const auto* const view : {"backgroundView", "thumbView"})
        EXPECT_STREQ(class_getName(object_getClass(perform(control, view, nullptr))), "UIView");
    objc_release(control);
}

TEST(PublishedMethodsListTest, NoMethodIsLeftOut) {
    for (const auto* const name : {"cxRootListController", "GlintImageSwitch"}) {
        auto called = calledByName.at(name);
        for (const auto& property : accessors) {
            if (property.className == std::string(name))
                called.insert({property.getter, property.setter});
        }
        if (std::string("cxRootListController") == name) {
            for (const auto& effect : effects)
                called.insert(effect.selector);
        }
        called.merge(std::set(calledByTheFrameworks.at(name)));
        std::set<std::string> published;
        for (const auto* const* selector = selectorsOf(name); *selector != nullptr; ++selector)
            published.insert(*selector);
        std::vector<std::string> different;
        std::ranges::set_symmetric_difference(called, published, std::back_inserter(different));
        EXPECT_EQ(different, Lines()) << name;
    }
}
