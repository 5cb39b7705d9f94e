#pragma once

#include "Foundation/Format.h"

#include <string_view>

/// Owed by each platform: writes one line to the system log. Any thread.
void logLine(std::string_view line);

/// Writes one formatted line to the system log: `NSLog("Deleting backup: %@", name)`.
template <class... Arguments>
void NSLog(FormatString<std::type_identity_t<Arguments>...> format, const Arguments&... arguments) {
    logLine(stringWithFormat<Arguments...>(format, arguments...));
}
