#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "UIKit/UIView.h"

/// Where a popover points to. One without a source cannot be shown: on a tablet that is the end of the
/// application. Made with the controller that is shown in the popover.
class UIPopoverPresentationController : public NSObject {
public:
    /// The view is not kept alive.
    virtual void setSourceView(UIView& view) = 0;

    /// What the popover points to, in the source view's coordinates.
    virtual void setSourceRect(const CGRect& rect) = 0;
};
