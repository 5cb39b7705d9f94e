#pragma once

#include <string>

/// A fresh random identifier in its text form: upper-case hexadecimal digits, grouped 8-4-4-4-12 by hyphens.
[[nodiscard]] std::string NSUUIDString();
