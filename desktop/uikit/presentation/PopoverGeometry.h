#pragma once

#include "CoreGraphics/CGGeometry.h"

/// Where a popover is: beside what it points to, on the first side that has room for it, and away from the
/// edges. Lengths are in points, places in the window's.
struct PopoverGeometry {
    CGRect room;   ///< of the window, without what its edges cover
    CGRect source; ///< what is pointed to

    static constexpr double cornerRadius = 13;
    static constexpr double arrowBase = 26;
    static constexpr double arrowHeight = 13;
    static constexpr double edgeDistance = 10;

    /// Of the source, in the order in which they are tried.
    enum class Side { Below, Above, Right, Left };

    struct Place {
        Side side;
        CGRect panel;
        CGRect arrow; ///< between the panel and the source
    };

    /// \param size of the panel; where no side has room for it it is made smaller
    [[nodiscard]] Place place(CGSize size) const;
};
