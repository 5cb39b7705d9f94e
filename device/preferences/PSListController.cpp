#include "Preferences/PSListController.h"

#include "Foundation/NSLog.h"
#include "FrameworkClass.h"
#include "ListControllerEntries.h"
#include "UIKit/UIViewController.h"
#include "UIViewControllerPeer.h"

namespace {

constexpr auto specifiersVariable = "_specifiers";

const FrameworkClassOf<PSListController, UIViewController> frameworkClass(
    "PSListController",
    {specifiersOverridable(), bundleOverridable(),
     overridable<"-[PSListController reloadSpecifiers]", &PSListController::reloadSpecifiers>(),
     overridable<"-[PSListController readPreferenceValue:]", &PSListController::readPreferenceValue>(),
     overridable<"-[PSListController setPreferenceValue:specifier:]",
                 &PSListController::setPreferenceValue>(),
     overridable<"-[PSListController tableView:heightForRowAtIndexPath:]",
                 &PSListController::heightForRowAtIndexPath>()});

} // namespace

id* cachedSpecifiersOf(id controller) {
    auto* const variable = class_getInstanceVariable(object_getClass(controller), specifiersVariable);
    if (variable == nullptr) {
        NSLog("The list controller has no place for its specifiers.");
        return nullptr;
    }
    return reinterpret_cast<id*>(reinterpret_cast<char*>(controller) + ivar_getOffset(variable));
}

PSListController::PSListController() = default;

PSListController::PSListController(std::unique_ptr<UIViewControllerPeer> peer)
    : UIViewController(std::move(peer)) {}

PSListController::Specifiers PSListController::specifiers() {
    return sendToBase<"-[PSListController specifiers]", Specifiers>(*this);
}

PSListController::Specifiers PSListController::cachedSpecifiers() const {
    const auto* const kept = cachedSpecifiersOf(objectOf(*this));
    return kept != nullptr ? fromRaw<Specifiers>(*kept) : Specifiers();
}

void PSListController::setCachedSpecifiers(Specifiers specifiers) {
    auto* const kept = cachedSpecifiersOf(objectOf(*this));
    if (kept == nullptr)
        return;
    const AutoreleasePool pool;
    objc_release(std::exchange(*kept, objc_retain(toRaw(specifiers))));
}

PSListController::Specifiers PSListController::loadSpecifiersFromPlistName(std::string_view name,
                                                                           NSObject& target) {
    const AutoreleasePool pool;
    return send<"-[PSListController loadSpecifiersFromPlistName:target:]", Specifiers>(*this, name, target);
}

void PSListController::reloadSpecifiers() {
    sendToBase<"-[PSListController reloadSpecifiers]", void>(*this);
}

std::optional<PropertyList> PSListController::readPreferenceValue(PSSpecifier& specifier) {
    return sendToBase<"-[PSListController readPreferenceValue:]", std::optional<PropertyList>>(*this,
                                                                                               specifier);
}

void PSListController::setPreferenceValue(const std::optional<PropertyList>& value, PSSpecifier& specifier) {
    sendToBase<"-[PSListController setPreferenceValue:specifier:]", void>(*this, value, specifier);
}

Ref<PSSpecifier> PSListController::specifierForID(std::string_view identifier) {
    return send<"-[PSListController specifierForID:]", Ref<PSSpecifier>>(*this, identifier);
}

Ref<PSSpecifier> PSListController::specifierAtIndexPath(NSIndexPath indexPath) {
    const AutoreleasePool pool;
    return send<"-[PSListController specifierAtIndexPath:]", Ref<PSSpecifier>>(*this, indexPath);
}

double PSListController::heightForRowAtIndexPath(UITableView& tableView, NSIndexPath indexPath) {
    const AutoreleasePool pool;
    return sendToBase<"-[PSListController tableView:heightForRowAtIndexPath:]", double>(*this, tableView,
                                                                                        indexPath);
}

Ref<UITableView> PSListController::table() {
    return send<"-[PSListController table]", Ref<UITableView>>(*this);
}
