#pragma once

#include "ObjectiveC/Ref.h"
#include "Preferences/PSSpecifier.h"

#include <optional>
#include <string>
#include <string_view>

/// A property of a row that is a text; nothing when the row has none of that name, or one of another kind.
[[nodiscard]] std::optional<std::string> textOf(const PSSpecifier& specifier, std::string_view key);

/// The same of a cell's row; nothing where the cell has none.
[[nodiscard]] std::optional<std::string> textOf(const Ref<PSSpecifier>& specifier, std::string_view key);
