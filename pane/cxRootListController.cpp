#include "cxRootListController.h"

#include "AudioToolbox/AudioServices.h"
#include "Foundation/NSLog.h"
#include "ObjectiveC/Class.h"
#include "ObjectiveC/Weak.h"
#include "PreferenceStore.h"
#include "UIKit/UINavigationController.h"

namespace {

constexpr auto listName = "Root";
constexpr auto masterSwitchKey = "kEnabled";
constexpr auto switchOffset = 70.0; ///< of the switch below the middle of the view, until it is in the bar
constexpr std::uint32_t openingSound = 1519;

const Class classObject = Class::define<cxRootListController, PSListController>(
    "cxRootListController",
    {method<"setupPreferences", &cxRootListController::setupPreferences>(),
     method<"setupNavigationSwitch", &cxRootListController::setupNavigationSwitch>(),
     method<"createNavigationSwitch", &cxRootListController::createNavigationSwitch>(),
     method<"configureNavigationSwitch:", &cxRootListController::configureNavigationSwitch>(),
     method<"switchChanged:", &cxRootListController::switchChanged>(),
     method<"setupButtonMenu", &cxRootListController::setupButtonMenu>(),
     method<"openController:", &cxRootListController::openController>(),
     method<"checkAndShowChangelogIfNeeded", &cxRootListController::checkAndShowChangelogIfNeeded>(),
     method<"saveCurrentVersion", &cxRootListController::saveCurrentVersion>(),
     method<"showWtfChangedInThisVersion", &cxRootListController::showWtfChangedInThisVersion>(),
     method<"addChangelogItemsToController:withImage:",
            &cxRootListController::addChangelogItemsToController>(),
     method<"resetSettings", &cxRootListController::resetSettings>(),
     method<"createResetAlert", &cxRootListController::createResetAlert>(),
     method<"createCancelAction", &cxRootListController::createCancelAction>(),
     method<"createConfirmAction", &cxRootListController::createConfirmAction>(),
     method<"performReset", &cxRootListController::performReset>(),
     method<"clearUserDefaults", &cxRootListController::clearUserDefaults>(),
     method<"removePreferenceFiles", &cxRootListController::removePreferenceFiles>(),
     method<"finalizeReset", &cxRootListController::finalizeReset>(),
     method<"closeSettings", &cxRootListController::closeSettings>(),
     method<"minimizeSettings", &cxRootListController::minimizeSettings>(),
     method<"terminateSettingsAfterDelay:", &cxRootListController::terminateSettingsAfterDelay>(),
     method<"terminateSettingsUsingBKS", &cxRootListController::terminateSettingsUsingBKS>(),
     method<"respringButton", &cxRootListController::respringButton>(),
     method<"setRespringButton:", &cxRootListController::setRespringButton>(),
     method<"toggleSwitch", &cxRootListController::toggleSwitch>(),
     method<"setToggleSwitch:", &cxRootListController::setToggleSwitch>(),
     method<"popupViewController", &cxRootListController::popupViewController>(),
     method<"setPopupViewController:", &cxRootListController::setPopupViewController>()});

/// A menu's row that calls the page, which the row does not keep alive.
Ref<UIAction> makeAction(std::string_view title, const Ref<UIImage>& image, cxRootListController& page,
                         void (cxRootListController::*call)()) {
    return UIAction::actionWithTitle(title, image, std::nullopt,
                                     [weakPage = Weak(&page), call](UIAction& /*action*/) {
                                         if (const auto strongPage = weakPage.strong())
                                             (strongPage.get()->*call)();
                                     });
}

/// Empty where the system has no such symbol.
Ref<UIImage> templateSymbol(std::string_view name) {
    const auto symbol = UIImage::systemImageNamed(name);
    return symbol ? symbol->imageWithRenderingMode(UIImageRenderingMode::AlwaysTemplate) : nullptr;
}

Ref<UIViewController> makeController(const std::string& className) {
    const auto* const named = NSClassFromString(className);
    return named != nullptr ? dynamicCast<UIViewController>(named->create()) : nullptr;
}

} // namespace

PSListController::Specifiers cxRootListController::specifiers() {
    if (cachedSpecifiers().empty())
        setCachedSpecifiers(loadSpecifiersFromPlistName(listName, *this));
    return cachedSpecifiers();
}

void cxRootListController::viewDidLoad() {
    PSListController::viewDidLoad();
    setupPreferences();
    setupNavigationSwitch();
    setupButtonMenu();
    checkAndShowChangelogIfNeeded();
}

void cxRootListController::setupPreferences() {
    preferences_ = PreferenceStore::open();
}

NSUserDefaults& cxRootListController::preferences() {
    if (!preferences_)
        setupPreferences();
    return *preferences_;
}

void cxRootListController::setupNavigationSwitch() {
    const auto navigationSwitch = createNavigationSwitch();
    configureNavigationSwitch(navigationSwitch);
    navigationItem().setTitleView(navigationSwitch);
}

Ref<GlintImageSwitch> cxRootListController::createNavigationSwitch() {
    auto navigationSwitch = makeWith<GlintImageSwitch>(&GlintImageSwitch::initWithFrame, CGRect());
    const auto bounds = view().bounds();
    navigationSwitch->setCenter({bounds.size.width / 2, bounds.size.height / 2 + switchOffset});
    navigationSwitch->addTarget(*this, "switchChanged:", UIControlEvents::ValueChanged);
    view().addSubview(navigationSwitch);
    return navigationSwitch;
}

// The track looks the same whether or not a finger is on it; that is meant.
void cxRootListController::configureNavigationSwitch(const Ref<GlintImageSwitch>& navigationSwitch) {
    if (!navigationSwitch)
        return;
    navigationSwitch->setThumbTintColor(UIColor::colorWithRed(0.19, 0.23, 0.33, 1.0));
    navigationSwitch->setActiveColor(UIColor::colorWithRed(0.07, 0.09, 0.11, 1.0));
    navigationSwitch->setInactiveColor(UIColor::colorWithRed(0.07, 0.09, 0.11, 1.0));
    navigationSwitch->setOnTintColor(UIColor::colorWithRed(0.45, 0.58, 0.67, 1.0));
    navigationSwitch->setBorderColor(UIColor::clearColor());
    navigationSwitch->setShadowColor(UIColor::blackColor());
    const auto enabled = preferences().objectForKey(masterSwitchKey);
    navigationSwitch->setOn(enabled && enabled->boolValue());
}

void cxRootListController::switchChanged(const Ref<GlintImageSwitch>& sender) {
    preferences().setObject(sender && sender->isOn(), masterSwitchKey);
    preferences().synchronize();
}

void cxRootListController::setupButtonMenu() {
    const auto apply = makeAction("Apply", templateSymbol("gear.badge.checkmark"), *this,
                                  &cxRootListController::closeSettings);
    const auto reset = makeAction("Reset Settings", UIImage::systemImageNamed("gear.badge.xmark"), *this,
                                  &cxRootListController::resetSettings);
    reset->setAttributes(UIMenuElementAttributes::Destructive);
    const auto item = UIBarButtonItem::initWithImage(UIImage::systemImageNamed("gear.badge"),
                                                     UIMenu::menuWithTitle("", {apply, reset}));
    item->setTintColor(UIColor::systemRedColor());
    navigationItem().setRightBarButtonItems({item});
}

void cxRootListController::openController(const Ref<UIControl>& sender) {
    AudioServicesPlaySystemSound(openingSound);
    const auto answer = sender ? sender->performSelector("identifier") : MessageValue();
    const auto identifier = MessageTraits<std::optional<std::string>>::unpack(answer);
    const auto controller = makeController(identifier.value_or(""));
    if (!controller) {
        NSLog("Error: Class %@ could not be initialized.", identifier);
        return;
    }
    if (const auto navigation = navigationController())
        navigation->pushViewController(controller, true);
}
