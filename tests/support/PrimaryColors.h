#pragma once

#include "ColorComponents.h"

/// Colours that nothing else on a tested screen has, opaque.
inline constexpr ColorComponents red{.red = 1};
inline constexpr ColorComponents green{.green = 1};
inline constexpr ColorComponents blue{.blue = 1};
