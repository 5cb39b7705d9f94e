#pragma once

#include "ObjectiveC/NSObject.h"

/// The material that a blur is seen through. The number is the platform's.
enum class UIBlurEffectStyle : int {
    Regular = 4 ///< light or dark as the appearance is
};

/// What a visual effect view makes of what lies behind it: a blur under a tint. Immutable.
class UIBlurEffect : public NSObject {
public:
    [[nodiscard]] static Ref<UIBlurEffect> effectWithStyle(UIBlurEffectStyle style);
};
