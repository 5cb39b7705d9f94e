#pragma once

#include "preferences/PreferenceChanges.h"
#include "preferences/PreferenceFile.h"

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

/// One preference domain of this process, shared by all its suite objects: the file, and what was changed
/// since it was last written. Any thread.
class PreferenceDomain {
public:
    /// A domain whose name cannot be that of a file in the folder (empty, ".", "..", or with "/" or U+0000 in
    /// it) keeps its values in memory only.
    PreferenceDomain(std::shared_ptr<const DeviceRoot> root, std::string_view name);

    [[nodiscard]] std::optional<PropertyList> value(std::string_view key);
    [[nodiscard]] PropertyList::Dictionary values();

    /// \pre canBeKept(key, value)
    void set(std::string_view key, const PropertyList& value);
    void remove(std::string_view key);
    void removeAll();

    /// \returns false, with a log line, when the changes are still not lasting; they are kept
    bool synchronize();

private:
    [[nodiscard]] const PropertyList::Dictionary& lastingContent();

    const std::string name_;
    std::mutex mutex_;
    std::optional<PreferenceFile> file_;
    PreferenceChanges changes_;
};
