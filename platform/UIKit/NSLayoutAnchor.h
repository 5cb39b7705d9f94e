#pragma once

#include "UIKit/NSLayoutConstraint.h"

/// An edge, a middle or a length of a view or of a layout guide, which makes it. Its kinds go together only
/// among themselves, and derive from it. Main thread only.
class NSLayoutAnchor : public NSObject {
protected:
    /// This anchor is to be where the other one is and `constant` points further right or down, or as long
    /// and `constant` points longer.
    [[nodiscard]] Ref<NSLayoutConstraint> constraintEqualTo(const NSLayoutAnchor& anchor,
                                                            double constant) const;
};
