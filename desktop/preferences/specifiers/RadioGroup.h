#pragma once

#include "specifiers/DesktopSpecifier.h"

/// Whether the row is one of a group of which one at a time is chosen: a "PSListItemCell" below a group with
/// "isRadioGroup".
[[nodiscard]] bool isChoice(const DesktopSpecifier& row);

/// Whether that row is the chosen one of its group: its "value" is the group's. In a group that keeps no
/// value, the one that was chosen last.
[[nodiscard]] bool isChosen(DesktopSpecifier& row);

/// Writes the row's "value" through the group's setter. \pre the row is a choice
void choose(DesktopSpecifier& row);
