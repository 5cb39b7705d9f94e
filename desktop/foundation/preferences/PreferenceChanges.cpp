#include "preferences/PreferenceChanges.h"

std::optional<PropertyList> PreferenceChanges::valueIn(const PropertyList::Dictionary& content,
                                                       std::string_view key) const {
    if (const auto change = values_.find(key); change != values_.end())
        return change->second;
    const auto found = content.find(key);
    if (areAllRemoved_ || found == content.end())
        return std::nullopt;
    return found->second;
}

void PreferenceChanges::applyTo(PropertyList::Dictionary& content) const {
    if (areAllRemoved_)
        content.clear();
    for (const auto& [key, value] : values_) {
        if (value)
            content.insert_or_assign(key, *value);
        else
            content.erase(key);
    }
}
