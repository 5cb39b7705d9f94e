#pragma once

#include "UIKit/UIColor.h"

#include <optional>
#include <string>

/// The colour that a text of hexadecimal digits writes down: RGB, RGBA, RRGGBB or RRGGBBAA, of which a digit
/// that stands alone counts twice. Nothing may stand before the digits. A text of another length, or none, is
/// clear, and a pair counts as what can be read of it.
[[nodiscard]] Ref<UIColor> colorFromHex(const std::optional<std::string>& text);
