#pragma once

#include "DesktopBundle.h"
#include "specifiers/DesktopSpecifier.h"

#include <string>
#include <string_view>
#include <vector>

/// What the list of rows "<name>.plist" in a bundle says, its texts in the user's language. What cannot be
/// understood is left out or counts as missing, with a log line each.
struct SpecifierList {
    std::string title; ///< empty when the list has none
    std::vector<Ref<PSSpecifier>> specifiers;

    /// Without rows when there is no such list or it is damaged.
    /// \param target gets the rows' messages
    [[nodiscard]] static SpecifierList read(const DesktopBundle& bundle, std::string_view name,
                                            NSObject& target);
};
