#pragma once

#include <string>
#include <string_view>

/// A text of the system's own, which is no bundle's, in the device's language; in English when it is not
/// known in that.
[[nodiscard]] std::string systemText(std::string_view english);
