#pragma once

#include "UIKit/NSLayoutAnchor.h"

/// A place from top to bottom.
class NSLayoutYAxisAnchor : public NSLayoutAnchor {
public:
    /// \param constant points below the other anchor
    [[nodiscard]] Ref<NSLayoutConstraint> constraintEqualToAnchor(const Ref<NSLayoutYAxisAnchor>& anchor,
                                                                  double constant = 0) const {
        return constraintEqualTo(*anchor, constant);
    }
};
