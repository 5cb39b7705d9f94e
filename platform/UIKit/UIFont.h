#pragma once

#include "ObjectiveC/NSObject.h"

/// How heavy a font is. The numbers are the platform's.
constexpr double UIFontWeightLight = -0.4;
constexpr double UIFontWeightMedium = 0.23;

/// A size of the system's text face. Immutable.
class UIFont : public NSObject {
public:
    /// The regular weight; `size` in points.
    [[nodiscard]] static Ref<UIFont> systemFontOfSize(double size);
    [[nodiscard]] static Ref<UIFont> systemFontOfSize(double size, double weight);
    [[nodiscard]] static Ref<UIFont> boldSystemFontOfSize(double size);
};
