#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIView.h"

#include <utility>

/// An edge, a middle or a length of a view.
enum class LayoutAttribute { Leading, Trailing, Top, Bottom, CenterX, CenterY, Width, Height };

/// The rectangle of a view that an attribute is of.
enum class LayoutGuide {
    Bounds,
    SafeArea, ///< what the bars and the device's own edges leave uncovered
    Margins   ///< the bounds less the view's layout margins
};

/// What a constraint ties. Does not keep the view alive.
struct LayoutAnchor {
    LayoutAnchor(UIView& anchored, LayoutAttribute which, LayoutGuide of = LayoutGuide::Bounds)
        : LayoutAnchor(Weak<UIView>(&anchored), which, of) {}

    LayoutAnchor(Weak<UIView> anchored, LayoutAttribute which, LayoutGuide of)
        : view(std::move(anchored)),
          attribute(which),
          guide(of) {}

    Weak<UIView> view;
    LayoutAttribute attribute;
    LayoutGuide guide;
};
