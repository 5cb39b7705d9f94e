#pragma once

#include "Foundation/PropertyList.h"
#include "ObjectiveC/NSObject.h"

#include <optional>
#include <string>
#include <string_view>

/// A preference domain, read and written by key. Kept by the system under "/var/mobile/Library/Preferences".
///
/// All suite objects of one name see each other's writes at once. Another process sees them after
/// `synchronize`, and what another process wrote is seen by the next read. Any thread.
class NSUserDefaults : public NSObject {
public:
    [[nodiscard]] static Ref<NSUserDefaults> initWithSuiteName(std::string_view suiteName);

    [[nodiscard]] virtual std::optional<PropertyList> objectForKey(std::string_view key) const = 0;

    /// A text as it is, a number as its text; nothing for any other value.
    [[nodiscard]] virtual std::optional<std::string> stringForKey(std::string_view key) const = 0;

    /// A text that is not valid UTF-8 or holds U+0000, as key or anywhere in the value, cannot be kept: the
    /// write is refused with a log line.
    virtual void setObject(const PropertyList& value, std::string_view key) = 0;

    virtual void removeObjectForKey(std::string_view key) = 0;

    /// Every key of the domain with its value.
    [[nodiscard]] virtual PropertyList::Dictionary dictionaryRepresentation() const = 0;

    /// Removes every key of the domain of that name.
    virtual void removePersistentDomainForName(std::string_view domainName) = 0;

    /// Makes all writes so far lasting. \returns false when that failed: they are still seen by this process
    /// and tried again by the next `synchronize`
    virtual bool synchronize() = 0;
};
