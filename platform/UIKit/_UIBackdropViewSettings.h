#pragma once

#include "ObjectiveC/NSObject.h"

/// What a backdrop makes of what lies behind it. Immutable.
class _UIBackdropViewSettings : public NSObject {
public:
    /// The system's settings of that style, by the platform's number. 2 is a thick material that is light or
    /// dark as the appearance is. Empty when there are none of that style.
    [[nodiscard]] static Ref<_UIBackdropViewSettings> settingsForStyle(int style);
};
