#pragma once

#include "Foundation/PropertyList.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

/// What was changed in a preference domain and is not lasting yet.
class PreferenceChanges {
public:
    void set(std::string_view key, PropertyList value) {
        values_.insert_or_assign(std::string(key), std::move(value));
    }

    void remove(std::string_view key) { values_.insert_or_assign(std::string(key), std::nullopt); }

    /// Removes all keys that there are, also those that another process wrote.
    void removeAll() {
        values_.clear();
        areAllRemoved_ = true;
    }

    [[nodiscard]] bool isEmpty() const { return values_.empty() && !areAllRemoved_; }

    /// The key's value once these changes are made to the content.
    [[nodiscard]] std::optional<PropertyList> valueIn(const PropertyList::Dictionary& content,
                                                      std::string_view key) const;

    void applyTo(PropertyList::Dictionary& content) const;

private:
    std::map<std::string, std::optional<PropertyList>, std::less<>> values_; ///< nothing: removed
    bool areAllRemoved_ = false;                                             ///< before `values_`
};
