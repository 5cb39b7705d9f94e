#pragma once

#include "ColorComponents.h"

#include <optional>
#include <string>
#include <string_view>

/// The colour that a text of hex digits stands for: "rgb", "rgba", "rrggbb" or "rrggbbaa", with "#" before it
/// or not; after "rrggbb" ":0.42" may tell the opacity. Nothing for any other text.
[[nodiscard]] std::optional<ColorComponents> colorFromCode(std::string_view text);

/// "rrggbbaa", in small letters.
[[nodiscard]] std::string codeOfColor(const ColorComponents& color);
