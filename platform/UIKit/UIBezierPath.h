#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "ObjectiveC/NSObject.h"

/// An outline. Immutable.
class UIBezierPath : public NSObject {
public:
    /// A rectangle with round corners; `cornerRadius` in points.
    [[nodiscard]] static Ref<UIBezierPath> bezierPathWithRoundedRect(const CGRect& rect, double cornerRadius);
};
