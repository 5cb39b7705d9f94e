#pragma once

#include "Foundation/PropertyList.h"

#include <string>
#include <vector>

/// What is wrong with a row's properties: of each whose type or value is none that the framework can use,
/// what it must be. Properties of the page's own are not looked at.
[[nodiscard]] std::vector<std::string> mistakesIn(const PropertyList::Dictionary& properties);
