#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// A text of the system's own, which is no bundle's, in the device's language; in English when it is not
/// known in that.
[[nodiscard]] std::string systemText(std::string_view english);

/// Likewise, with each "%@" in turn replaced by an argument.
[[nodiscard]] std::string systemText(std::string_view english, std::initializer_list<std::string> arguments);

/// What the host says of an error of that number, in the device's language likewise.
[[nodiscard]] std::string systemTextOfError(int error);
