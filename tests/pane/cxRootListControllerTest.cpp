#include "cxRootListController.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "PreferenceStore.h"
#include "RootPageFixture.h"
#include "controllers/UIViewControllerPeer.h"
#include "controls/UIControlPeer.h"
#include "menus/DesktopAction.h"
#include "navigation/UINavigationControllerPeer.h"
#include "system/DarwinNotifications.h"
#include "system/SystemSounds.h"
#include "views/UILabelPeer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// A button that names a page.
class PageButton final : public UIControl {
public:
    [[nodiscard]] const std::optional<std::string>& identifier() const { return identifier_; }

    void setIdentifier(std::optional<std::string> identifier) { identifier_ = std::move(identifier); }

private:
    std::optional<std::string> identifier_;
};

/// A button that keeps what was heard until it was asked for the page that it names.
class ListeningButton final : public UIControl {
public:
    [[nodiscard]] std::optional<std::string> identifier() {
        heard = Device::current().sounds().take();
        return "OpenedPage";
    }

    std::vector<std::uint32_t> heard;
};

class OpenedPage final : public UIViewController {};

const Class buttonClass =
    Class::define<PageButton, UIControl>("PageButton", {method<"identifier", &PageButton::identifier>()});
const Class listeningClass = Class::define<ListeningButton, UIControl>(
    "ListeningButton", {method<"identifier", &ListeningButton::identifier>()});
const Class pageClass = Class::define<OpenedPage, UIViewController>("OpenedPage");

Ref<PageButton> buttonFor(std::optional<std::string> identifier) {
    auto button = make<PageButton>();
    button->setIdentifier(std::move(identifier));
    return button;
}

class cxRootListControllerTest : public RootPageFixture {
protected:
    cxRootListControllerTest() : RootPageFixture(true) {}
};

} // namespace

TEST_F(cxRootListControllerTest, IsAListPageThatTheFrameworkCanMakeByName) {
    const auto* const named = NSClassFromString("cxRootListController");
    ASSERT_NE(named, nullptr);
    EXPECT_TRUE(named->isSubclassOf(*NSClassFromString("PSListController")));
    EXPECT_TRUE(dynamicCast<cxRootListController>(named->create()));
}

TEST_F(cxRootListControllerTest, AnswersItsMethodsUnderTheirNames) {
    for (const auto* selector : {"specifiers",
                                 "viewDidLoad",
                                 "setupPreferences",
                                 "setupNavigationSwitch",
                                 "createNavigationSwitch",
                                 "configureNavigationSwitch:",
                                 "switchChanged:",
                                 "setupButtonMenu",
                                 "openController:",
                                 "checkAndShowChangelogIfNeeded",
                                 "saveCurrentVersion",
                                 "showWtfChangedInThisVersion",
                                 "addChangelogItemsToController:withImage:",
                                 "resetSettings",
                                 "createResetAlert",
                                 "createCancelAction",
                                 "createConfirmAction",
                                 "performReset",
                                 "clearUserDefaults",
                                 "removePreferenceFiles",
                                 "finalizeReset",
                                 "closeSettings",
                                 "minimizeSettings",
                                 "terminateSettingsAfterDelay:",
                                 "terminateSettingsUsingBKS",
                                 "respringButton",
                                 "setRespringButton:",
                                 "toggleSwitch",
                                 "setToggleSwitch:",
                                 "popupViewController",
                                 "setPopupViewController:"})
        EXPECT_TRUE(page->respondsToSelector(selector)) << selector;
}

TEST_F(cxRootListControllerTest, LoadsItsListOnceAndKeepsIt) {
    const auto first = page->specifiers();
    ASSERT_EQ(first.size(), 2U);
    EXPECT_EQ(first[1]->propertyForKey("key"), PropertyList("removeSOS"));
    device.write(std::string(bundlePath) + "/Root.plist", "gone");
    EXPECT_EQ(page->specifiers(), first);
    EXPECT_EQ(page->cachedSpecifiers(), first);
}

TEST_F(cxRootListControllerTest, AListThatWasEmptyIsLookedForAgain) {
    const auto list = device.read(std::string(bundlePath) + "/Root.plist");
    device.write(std::string(bundlePath) + "/Root.plist", "damaged");
    EXPECT_TRUE(page->specifiers().empty());
    device.write(std::string(bundlePath) + "/Root.plist", list);
    EXPECT_EQ(page->specifiers().size(), 2U);
}

TEST_F(cxRootListControllerTest, ItsSwitchStandsInTheBarWithItsColours) {
    show();
    const auto shown = masterSwitch();
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->bounds().size, (CGSize{50, 30}));
    const auto expect = [](const Ref<UIColor>& color, const ColorComponents& components) {
        EXPECT_EQ(DesktopColor::resolve(color, Traits()), components);
    };
    expect(shown->thumbTintColor(), {0.19, 0.23, 0.33, 1});
    expect(shown->onThumbTintColor(), {0.19, 0.23, 0.33, 1});
    expect(shown->activeColor(), {0.07, 0.09, 0.11, 1});
    expect(shown->inactiveColor(), {0.07, 0.09, 0.11, 1});
    expect(shown->onTintColor(), {0.45, 0.58, 0.67, 1});
    expect(shown->borderColor(), {0, 0, 0, 0});
    expect(shown->shadowColor(), {0, 0, 0, 1});
    EXPECT_FALSE(shown->onImage());
    EXPECT_FALSE(peerOf<UILabelPeer>(*shown->onLabel()).text());
}

TEST_F(cxRootListControllerTest, TheThumbsColourStandsForBothStates) {
    show();
    masterSwitch()->setThumbTintColor(UIColor::yellowColor());
    EXPECT_EQ(DesktopColor::resolve(masterSwitch()->onThumbTintColor(), Traits()),
              DesktopColor::resolve(UIColor::yellowColor(), Traits()));
}

TEST_F(cxRootListControllerTest, TheSwitchIsMadeInThePageBelowItsMiddle) {
    page->view().setFrame(CGRectMake(0, 0, 300, 500));
    const auto made = page->createNavigationSwitch();
    EXPECT_EQ(made->layer().peer().position(), (CGPoint{150, 320}));
    EXPECT_EQ(made->peer().superview(), &page->view());
}

TEST_F(cxRootListControllerTest, TheSwitchShowsTheStoredValue) {
    struct Case {
        PropertyList stored;
        bool on = false;
    };

    for (const auto& [value, on] :
         {Case{true, true}, Case{false, false}, Case{1, true}, Case{0, false}, Case{"YES", true},
          Case{"no", false}, Case{PropertyList::Array{true}, false}}) {
        store(value);
        const auto other = make<cxRootListController>();
        static_cast<void>(other->view());
        EXPECT_EQ(dynamicCast<GlintImageSwitch>(other->peer().navigationItem().titleView())->isOn(), on)
            << value.description();
    }
}

TEST_F(cxRootListControllerTest, WithoutAStoredValueTheSwitchIsOff) {
    show();
    EXPECT_FALSE(masterSwitch()->isOn());
    EXPECT_FALSE(stored("kEnabled"));
}

TEST_F(cxRootListControllerTest, FlippingTheSwitchStoresEachChangeAtOnceAndDoesNothingElse) {
    show();
    tapMasterSwitch();
    EXPECT_EQ(stored("kEnabled"), PropertyList(true));
    settle();
    tapMasterSwitch();
    EXPECT_EQ(stored("kEnabled"), PropertyList(false));
    EXPECT_EQ(Device::current().sounds().take(), Sounds());
    EXPECT_TRUE(Device::current().notifications().take().empty());
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxRootListControllerTest, TheSwitchDoesNotFollowAChangeFromElsewhereUntilThePageIsMadeAnew) {
    show();
    store(true);
    settle();
    EXPECT_FALSE(masterSwitch()->isOn());
    const auto other = make<cxRootListController>();
    static_cast<void>(other->view());
    EXPECT_TRUE(dynamicCast<GlintImageSwitch>(other->peer().navigationItem().titleView())->isOn());
}

TEST_F(cxRootListControllerTest, TheRightOfTheBarHoldsOneRedGear) {
    show();
    ASSERT_EQ(item().rightItems().size(), 1U);
    EXPECT_EQ(dynamicCast<DesktopImage>(gear().content().image)->symbolName(), "gear.badge");
    EXPECT_EQ(DesktopColor::resolve(gear().tintColor(), Traits()),
              systemColor(SystemColor::Red, Appearance::Light));
    EXPECT_TRUE(item().leftItems().empty());
}

TEST_F(cxRootListControllerTest, TheGearsMenuHasApplyAboveTheDestructiveReset) {
    show();
    EXPECT_EQ(menu().title(), "");
    ASSERT_EQ(menu().actions().size(), 2U);
    const auto& apply = *menu().actions()[0];
    EXPECT_EQ(apply.title(), "Apply");
    EXPECT_FALSE(apply.isDestructive());
    EXPECT_EQ(dynamicCast<DesktopImage>(apply.image())->symbolName(), "gear.badge.checkmark");
    EXPECT_EQ(dynamicCast<DesktopImage>(apply.image())->renderingMode(),
              UIImageRenderingMode::AlwaysTemplate);
    const auto& reset = *menu().actions()[1];
    EXPECT_EQ(reset.title(), "Reset Settings");
    EXPECT_TRUE(reset.isDestructive());
    EXPECT_EQ(dynamicCast<DesktopImage>(reset.image())->symbolName(), "gear.badge.xmark");
    EXPECT_EQ(dynamicCast<DesktopImage>(reset.image())->renderingMode(), UIImageRenderingMode::Automatic);
}

TEST_F(cxRootListControllerTest, TheMenuDoesNotKeepThePageAlive) {
    static_cast<void>(page->view());
    const auto keptMenu = gear().content().menu;
    const Weak<cxRootListController> watched = page;
    page = nullptr;
    EXPECT_FALSE(watched.strong());
    for (const auto& action : dynamic_cast<const DesktopMenu&>(*keptMenu).actions())
        action->perform();
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxRootListControllerTest, AButtonOpensThePageThatItNames) {
    show();
    page->openController(buttonFor("OpenedPage"));
    settle();
    EXPECT_TRUE(dynamicCast<OpenedPage>(peerOf<UINavigationControllerPeer>(*navigation).top()));
    EXPECT_EQ(Device::current().sounds().take(), Sounds{1519});
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxRootListControllerTest, TheTapIsHeardBeforeAnythingElse) {
    show();
    const auto button = make<ListeningButton>();
    page->openController(button);
    EXPECT_EQ(button->heard, Sounds{1519});
    settle();
}

TEST_F(cxRootListControllerTest, AButtonThatNamesNoPageTapsAndLogsOnce) {
    show();
    for (const auto& [identifier, printed] : std::vector<std::pair<std::optional<std::string>, std::string>>{
             {"cxNoSuchController", "cxNoSuchController"},
             {"", ""},
             {"PageButton", "PageButton"},
             {std::nullopt, "(null)"}}) {
        page->openController(buttonFor(identifier));
        settle();
        EXPECT_EQ(Device::current().sounds().take(), Sounds{1519});
        EXPECT_EQ(device.log().take(), Log{"Error: Class " + printed + " could not be initialized."});
        EXPECT_EQ(peerOf<UINavigationControllerPeer>(*navigation).top(), page);
    }
}

TEST_F(cxRootListControllerTest, NothingInThePlaceOfAnObjectIsHarmless) {
    PreferenceStore::open()->setObject(true, "kEnabled");
    page->performSelector("openController:", {MessageValue()});
    EXPECT_EQ(Device::current().sounds().take(), Sounds{1519});
    EXPECT_EQ(device.log().take(), Log{"Error: Class (null) could not be initialized."});
    page->performSelector("configureNavigationSwitch:", {MessageValue()});
    page->performSelector("addChangelogItemsToController:withImage:", {MessageValue(), MessageValue()});
    page->performSelector("switchChanged:", {MessageValue()});
    EXPECT_EQ(PreferenceStore::open()->objectForKey("kEnabled"), PropertyList(false));
}

TEST_F(cxRootListControllerTest, ThePreferencesAreOpenedByWhateverNeedsThemFirst) {
    PreferenceStore::open()->setObject(true, "kEnabled");
    page->clearUserDefaults();
    EXPECT_EQ(PreferenceStore::open()->objectForKey("kEnabled"), std::nullopt);
}

TEST_F(cxRootListControllerTest, IsTheTargetOfItsButtonsByTheActionsName) {
    show();
    page->performSelector("openController:", {Ref<NSObject>(buttonFor("OpenedPage"))});
    settle();
    EXPECT_TRUE(dynamicCast<OpenedPage>(peerOf<UINavigationControllerPeer>(*navigation).top()));
}

TEST_F(cxRootListControllerTest, ThePropertiesOfOthersAreKeptAsGiven) {
    EXPECT_FALSE(page->respringButton());
    EXPECT_FALSE(page->toggleSwitch());
    EXPECT_FALSE(page->popupViewController());
    const auto button = UIBarButtonItem::initWithImage(nullptr, nullptr);
    const auto toggle = make<UISwitch>();
    const auto popup = make<OpenedPage>();
    page->setRespringButton(button);
    page->setToggleSwitch(toggle);
    page->setPopupViewController(popup);
    EXPECT_EQ(page->respringButton(), button);
    EXPECT_EQ(page->toggleSwitch(), toggle);
    EXPECT_EQ(page->popupViewController(), popup);
}

TEST_F(cxRootListControllerTest, EndsWithItsNavigationController) {
    show();
    const Weak<cxRootListController> watched = page;
    page = nullptr;
    screen.removeWindow(*window);
    window = nullptr;
    navigation = nullptr;
    settle();
    EXPECT_FALSE(watched.strong());
}
