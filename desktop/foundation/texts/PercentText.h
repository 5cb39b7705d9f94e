#pragma once

#include <string>

/// A part of the whole, such as 1, in percent as the locale writes it: without digits behind the point.
[[nodiscard]] std::string percentText(double part, const std::string& locale);
