#pragma once

#include "ObjectiveC/NSObject.h"

/// A size of the system's text face. Immutable.
class UIFont : public NSObject {
public:
    /// The regular weight; `size` in points.
    [[nodiscard]] static Ref<UIFont> systemFontOfSize(double size);
};
