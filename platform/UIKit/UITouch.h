#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "UIKit/UIView.h"

/// One finger on the screen, from the moment it comes down until it is lifted.
class UITouch : public NSObject {
public:
    /// Where the finger is now, in points of that view.
    [[nodiscard]] virtual CGPoint locationInView(const UIView& view) const = 0;
};
