#pragma once

#include <array>
#include <cstddef>

/// What of a layer can be animated.
enum class LayerProperty : std::size_t {
    Position,        ///< of the anchor point, in the superlayer: x, y
    BoundsOrigin,    ///< x, y
    BoundsSize,      ///< width, height
    Transform,       ///< a, b, c, d, tx, ty
    Opacity,         ///< 0..1
    BackgroundColor, ///< red, green, blue, alpha
    BorderColor,     ///< likewise
    BorderWidth,     ///< points
    CornerRadius,    ///< points
    ShadowColor,     ///< red, green, blue, alpha
    ShadowOpacity,   ///< 0..1
    ShadowOffset,    ///< width, height
    ShadowRadius,    ///< points
    Count
};

inline constexpr auto layerPropertyCount = static_cast<std::size_t>(LayerProperty::Count);

/// A value of any of them as the numbers it is made of; those beyond are 0.
using LayerValue = std::array<double, 6>;
