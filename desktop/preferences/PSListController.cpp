#include "Preferences/PSListController.h"

#include "LoadedBundles.h"
#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "specifiers/PreferenceValues.h"
#include "specifiers/SpecifierList.h"

#include <array>
#include <span>
#include <utility>

namespace {

template <class T>
T argumentAt(std::span<const MessageValue> arguments, std::size_t index) {
    return MessageTraits<T>::unpack(index < arguments.size() ? arguments[index] : MessageValue());
}

MessageValue readValue(NSObject& receiver, std::span<const MessageValue> arguments) {
    const auto specifier = argumentAt<Ref<PSSpecifier>>(arguments, 0);
    if (!specifier)
        return {};
    const auto value = dynamic_cast<PSListController&>(receiver).readPreferenceValue(*specifier);
    return MessageTraits<std::optional<PropertyList>>::pack(value);
}

MessageValue setValue(NSObject& receiver, std::span<const MessageValue> arguments) {
    const auto value = argumentAt<std::optional<PropertyList>>(arguments, 0);
    if (const auto specifier = argumentAt<Ref<PSSpecifier>>(arguments, 1))
        dynamic_cast<PSListController&>(receiver).setPreferenceValue(value, *specifier);
    return {};
}

constexpr std::array readParameters{MessageType::Object};
constexpr std::array setParameters{MessageType::Value, MessageType::Object};

const Class listClass = Class::define<PSListController, UIViewController>(
    "PSListController",
    {Method{"readPreferenceValue:", MessageType::Value, readParameters, &readValue},
     Method{"setPreferenceValue:specifier:", MessageType::Nothing, setParameters, &setValue},
     method<"specifiers", &PSListController::specifiers>(),
     method<"reloadSpecifiers", &PSListController::reloadSpecifiers>()});

/// Every row of a page is one.
DesktopSpecifier& desktopHalf(PSSpecifier& specifier) {
    return dynamic_cast<DesktopSpecifier&>(specifier);
}

} // namespace

PSListController::PSListController() : PSListController(std::make_unique<PSListControllerPeer>()) {}

PSListController::PSListController(std::unique_ptr<UIViewControllerPeer> peer)
    : UIViewController(std::move(peer)) {}

PSListController::Specifiers PSListController::specifiers() {
    return cachedSpecifiers();
}

PSListController::Specifiers PSListController::cachedSpecifiers() const {
    return peerOf<PSListControllerPeer>(*this).cachedSpecifiers();
}

void PSListController::setCachedSpecifiers(Specifiers specifiers) {
    peerOf<PSListControllerPeer>(*this).setCachedSpecifiers(std::move(specifiers));
}

PSListController::Specifiers PSListController::loadSpecifiersFromPlistName(std::string_view name,
                                                                           NSObject& target) {
    auto list = SpecifierList::read(*LoadedBundles::shared().bundleOf(isa()), name, target);
    peerOf<PSListControllerPeer>(*this).setListTitle(list.title);
    return std::move(list.specifiers);
}

void PSListController::reloadSpecifiers() {
    peerOf<PSListControllerPeer>(*this).reloadSpecifiers();
}

std::optional<PropertyList> PSListController::readPreferenceValue(PSSpecifier& specifier) {
    auto kept = readKeptValue(desktopHalf(specifier));
    return kept ? std::move(kept) : specifier.propertyForKey("default");
}

void PSListController::setPreferenceValue(const std::optional<PropertyList>& value, PSSpecifier& specifier) {
    keepValue(value, desktopHalf(specifier));
}

Ref<PSSpecifier> PSListController::specifierAtIndexPath(NSIndexPath indexPath) {
    return peerOf<PSListControllerPeer>(*this).specifierAt(indexPath);
}

double PSListController::heightForRowAtIndexPath(UITableView& /*tableView*/, NSIndexPath indexPath) {
    const auto specifier = specifierAtIndexPath(indexPath);
    return specifier ? desktopHalf(*specifier).height().value_or(UITableViewAutomaticDimension)
                     : UITableViewAutomaticDimension;
}

Ref<UITableView> PSListController::table() {
    return retain(&dynamic_cast<UITableView&>(peerOf<PSListControllerPeer>(*this).table().view()));
}

Ref<PSSpecifier> PSListController::specifierForID(std::string_view identifier) {
    if (identifier.empty())
        return nullptr;
    for (const auto& specifier : specifiers()) {
        if (desktopHalf(*specifier).identifier() == identifier)
            return specifier;
    }
    return nullptr;
}
