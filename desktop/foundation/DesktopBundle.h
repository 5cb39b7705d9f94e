#pragma once

#include "Foundation/NSBundle.h"
#include "texts/StringTable.h"

#include <map>
#include <mutex>
#include <string>
#include <vector>

/// A bundle in a folder of the current device, which need not exist: it then has no tables. Any thread.
class DesktopBundle final : public NSBundle {
public:
    explicit DesktopBundle(std::string_view path) : path_(path) {}

    /// The bundle in that folder; empty when there is no folder at the path.
    [[nodiscard]] static Ref<DesktopBundle> withPath(std::string_view path);

    [[nodiscard]] const std::string& path() const { return path_; }

    // NSBundle:
    [[nodiscard]] std::string localizedStringForKey(std::string_view key, std::optional<std::string> value,
                                                    std::optional<std::string> table) const override;

private:
    /// The text, if the table and the key exist.
    [[nodiscard]] std::optional<std::string> lookUp(std::string_view key, const std::string& table) const;

    /// The table of the first of the languages that has one; an empty table when none has, or it is damaged.
    [[nodiscard]] StringTable readTable(const std::string& name) const;

    /// The folders in which tables may be, the one to prefer first.
    [[nodiscard]] std::vector<std::string> tableFolders() const;

    const std::string path_;
    mutable std::mutex mutex_;
    mutable std::map<std::string, StringTable> tables_; ///< read so far, by name
};
