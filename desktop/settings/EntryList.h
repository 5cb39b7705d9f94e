#pragma once

#include "PaneEntry.h"

#include <string_view>
#include <vector>

/// Reads what is installed in the entry folder of the current device.
class EntryList {
public:
    EntryList() = delete;

    static constexpr std::string_view folder = "/var/jb/Library/PreferenceLoader/Preferences";

    /// All entries, by label. A file that describes none is logged and left out.
    [[nodiscard]] static std::vector<PaneEntry> read();

    /// The entry of that name, or else of that label; nothing when there is none.
    [[nodiscard]] static std::optional<PaneEntry> find(std::string_view nameOrLabel);
};
