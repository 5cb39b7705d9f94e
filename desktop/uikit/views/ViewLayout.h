#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "UIKit/NSLayoutConstraint.h"

#include <vector>

/// How strongly a view keeps to its intrinsic size in one direction, as priorities of constraints.
struct ContentPriorities {
    double hugging = 250;     ///< against being larger
    double compression = 750; ///< against being smaller
};

/// How a view takes part in the layout by constraints. Kept by its peer.
struct ViewLayout {
    /// Whether the view's frame is given, and holds as it is; else constraints and intrinsic sizes decide.
    bool frameIsGiven = true;
    ContentPriorities horizontal;
    ContentPriorities vertical;
    UIEdgeInsets margins{.top = 8, .left = 8, .bottom = 8, .right = 8};
    /// The active ones that the view holds.
    std::vector<Ref<NSLayoutConstraint>> constraints;
    bool contradictionIsLogged = false; ///< of what is to hold within the view
};
