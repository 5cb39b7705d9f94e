#pragma once

#include "UIKit/NSLayoutAnchor.h"

/// A width or a height.
class NSLayoutDimension : public NSLayoutAnchor {
public:
    /// \param constant points longer than the other length
    [[nodiscard]] Ref<NSLayoutConstraint> constraintEqualToAnchor(const Ref<NSLayoutDimension>& anchor,
                                                                  double constant = 0) const {
        return constraintEqualTo(*anchor, constant);
    }

    /// \param constant the length in points
    [[nodiscard]] Ref<NSLayoutConstraint> constraintEqualToConstant(double constant) const;
};
