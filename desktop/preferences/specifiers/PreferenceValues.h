#pragma once

#include "specifiers/DesktopSpecifier.h"

#include <optional>

/// What is kept for a row: under its "key" in the preference domain "defaults". Nothing when there is
/// nothing, or when the row names no such place.
[[nodiscard]] std::optional<PropertyList> readKeptValue(const DesktopSpecifier& specifier);

/// Keeps a value for a row, or, without one, removes what is kept, and posts the row's "PostNotification".
/// Nothing happens when the row names no place.
void keepValue(const std::optional<PropertyList>& value, const DesktopSpecifier& specifier);
