#pragma once

#include <optional>
#include <string_view>

/// A decimal number such as `-12.5` or `3e2`, whatever the process's locale. Nothing for any other text:
/// blanks, a sign "+", digits in another base, "nan", "inf", or what a double cannot hold.
[[nodiscard]] std::optional<double> numberFromText(std::string_view text);

/// A whole number from 1 on, in digits only.
[[nodiscard]] std::optional<int> countFromText(std::string_view text);
