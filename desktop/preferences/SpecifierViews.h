#pragma once

#include "Preferences/PSTableCell.h"
#include "specifiers/DesktopSpecifier.h"

#include <string>
#include <string_view>

/// A new cell of the class that the row names, or else of the one that suits its kind. A named class that
/// cannot be used is logged.
/// \param reuseIdentifier for a cell of the kind's own class; one of a named class has none
[[nodiscard]] Ref<PSTableCell> makeCellFor(DesktopSpecifier& specifier, const std::string& reuseIdentifier);

/// A new view of the class that a group names under `key`; empty when it names none, or none that can be
/// used, which is logged.
[[nodiscard]] Ref<UIView> makeCaptionViewFor(DesktopSpecifier& group, std::string_view key);
