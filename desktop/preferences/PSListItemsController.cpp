#include "PSListItemsController.h"

#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "specifiers/SpecifierChoices.h"

#include <utility>

namespace {

constexpr auto getter = "chosenValue";
constexpr auto setter = "chooseValue:";

const Class pageClass = Class::define<PSListItemsController, PSListController>(
    "PSListItemsController", {method<"chosenValue", &PSListItemsController::chosenValue>(),
                              method<"chooseValue:", &PSListItemsController::chooseValue>()});

PropertyList::Dictionary groupFor(const DesktopSpecifier& opener) {
    return {{"cell", "PSGroupCell"}, {"id", "choices"},
            {"isRadioGroup", true},  {"get", getter},
            {"set", setter},         {"footerText", opener.textForKey("staticTextMessage")}};
}

PropertyList::Dictionary rowFor(const SpecifierChoices& choices, std::size_t index) {
    return {{"cell", "PSListItemCell"}, {"label", choices.titles[index]}, {"value", choices.values[index]}};
}

} // namespace

PSListItemsController::PSListItemsController() = default;

Ref<DesktopSpecifier> PSListItemsController::opener() const {
    return peerOf<PSListControllerPeer>(*this).specifier();
}

PSListController::Specifiers PSListItemsController::specifiers() {
    const auto row = opener();
    if (!row || !cachedSpecifiers().empty())
        return cachedSpecifiers();
    const auto choices = SpecifierChoices::of(*row);
    Specifiers rows;
    rows.emplace_back(make<DesktopSpecifier>(groupFor(*row), *this));
    for (std::size_t index = 0; index < choices.values.size(); ++index)
        rows.emplace_back(make<DesktopSpecifier>(rowFor(choices, index), *this));
    setCachedSpecifiers(std::move(rows));
    return cachedSpecifiers();
}

std::optional<PropertyList> PSListItemsController::chosenValue() {
    const auto row = opener();
    return row ? row->performGetter() : std::nullopt;
}

void PSListItemsController::chooseValue(const std::optional<PropertyList>& value) {
    if (const auto row = opener())
        row->performSetter(value);
}
