#pragma once

#include "UIKit/UIView.h"
#include "presentation/PopoverGeometry.h"

/// The arrow between a popover's panel and what it points to, in the panel's colour. Made by the popover.
class PopoverArrowView final : public UIView {
public:
    PopoverArrowView();

    /// \param side of the source that the panel is on
    void setSide(PopoverGeometry::Side side);
};
