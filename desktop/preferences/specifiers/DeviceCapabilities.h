#pragma once

#include "Foundation/PropertyList.h"

#include <string_view>

/// Whether the device can do what goes by that name.
[[nodiscard]] bool deviceHasCapability(std::string_view name);

/// Whether it can do what a row requires: every one of an array of names, or, of a dictionary, each name that
/// is true and none that is false. A value of another type requires nothing.
[[nodiscard]] bool deviceMeets(const PropertyList& requiredCapabilities);
