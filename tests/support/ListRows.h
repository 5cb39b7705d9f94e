#pragma once

#include "ListRow.h"
#include "Preferences/PSListController.h"
#include "UIKit/UITableViewCell.h"
#include "specifiers/DesktopSpecifier.h"

#include <string>

/// What a page tells of the row of that identifier; of a row that is missing, which fails the test, nothing.
[[nodiscard]] ListRow rowOf(const PSListController& page, const std::string& id);

/// The row's cell. \pre it is near the screen
[[nodiscard]] UITableViewCell& cellOf(const PSListController& page, const std::string& id);

/// \pre there is such a row
[[nodiscard]] DesktopSpecifier& specifierOf(PSListController& page, const std::string& id);
