#include "cxCollectDynamicSpecifiers.h"

#include "Foundation/NSString.h"
#include "ObjectiveC/Class.h"
#include "SpecifierText.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr std::string_view ruleKey = "dynamicRule";
constexpr std::string_view ruleSeparator = ", ";
constexpr std::size_t ruleParts = 3;

const Class classObject = Class::define<cxCollectDynamicSpecifiers, PSListController>(
    "cxCollectDynamicSpecifiers",
    {method<"collectDynamicSpecifiersFromArray:",
            &cxCollectDynamicSpecifiers::collectDynamicSpecifiersFromArray>(),
     method<"shouldHideSpecifier:", &cxCollectDynamicSpecifiers::shouldHideSpecifier>(),
     method<"hasDynamicSpecifiers", &cxCollectDynamicSpecifiers::hasDynamicSpecifiers>(),
     method<"setHasDynamicSpecifiers:", &cxCollectDynamicSpecifiers::setHasDynamicSpecifiers>(),
     method<"dynamicSpecifiers", &cxCollectDynamicSpecifiers::dynamicSpecifiers>(),
     method<"setDynamicSpecifiers:", &cxCollectDynamicSpecifiers::setDynamicSpecifiers>()});

std::vector<std::string> partsOfRule(const PSSpecifier& specifier) {
    return componentsSeparatedByString(textOf(specifier, ruleKey).value_or(""), ruleSeparator);
}

} // namespace

void cxCollectDynamicSpecifiers::collectDynamicSpecifiersFromArray(const Specifiers& specifiers) {
    if (dynamicSpecifiers_)
        dynamicSpecifiers_->removeAllObjects();
    else
        dynamicSpecifiers_ = NSMutableDictionary::dictionary();
    for (const auto& specifier : specifiers) {
        if (const auto parts = partsOfRule(*specifier); parts.size() == ruleParts)
            dynamicSpecifiers_->setObject(specifier, parts.front());
    }
    hasDynamicSpecifiers_ = !dynamicSpecifiers_->allValues().empty();
}

bool cxCollectDynamicSpecifiers::shouldHideSpecifier(const Ref<PSSpecifier>& specifier) {
    if (!specifier)
        return false;
    const auto controlling = specifierForID(partsOfRule(*specifier).front());
    const auto value = controlling ? readPreferenceValue(*controlling) : std::nullopt;
    return value && value->isNumber() && !value->boolValue();
}

double cxCollectDynamicSpecifiers::heightForRowAtIndexPath(UITableView& /*tableView*/,
                                                           NSIndexPath indexPath) {
    const auto specifier = hasDynamicSpecifiers_ ? specifierAtIndexPath(indexPath) : nullptr;
    if (!isDependent(specifier))
        return UITableViewAutomaticDimension;
    const auto hidden = shouldHideSpecifier(specifier);
    if (const auto cell = dynamicCast<UIView>(specifier->propertyObjectForKey(PSTableCellKey)))
        cell->setClipsToBounds(hidden);
    return hidden ? 0.0 : UITableViewAutomaticDimension;
}

void cxCollectDynamicSpecifiers::setPreferenceValue(const std::optional<PropertyList>& value,
                                                    PSSpecifier& specifier) {
    PSListController::setPreferenceValue(value, specifier);
    if (!hasDynamicSpecifiers_ || !controlsAnother(specifier))
        return;
    if (const auto rows = table()) {
        rows->beginUpdates();
        rows->endUpdates();
    }
}

bool cxCollectDynamicSpecifiers::isDependent(const Ref<PSSpecifier>& specifier) const {
    if (!specifier || !dynamicSpecifiers_)
        return false;
    const auto dependents = dynamicSpecifiers_->allValues();
    return std::ranges::find(dependents, specifier.get(), &Ref<NSObject>::get) != dependents.end();
}

bool cxCollectDynamicSpecifiers::controlsAnother(const PSSpecifier& specifier) const {
    return dynamicSpecifiers_ && dynamicSpecifiers_->objectForKey(textOf(specifier, PSIDKey).value_or(""));
}
