#pragma once

#include "UIKit/NSLayoutAnchor.h"

/// A place from left to right.
class NSLayoutXAxisAnchor : public NSLayoutAnchor {
public:
    /// \param constant points to the right of the other anchor
    [[nodiscard]] Ref<NSLayoutConstraint> constraintEqualToAnchor(const Ref<NSLayoutXAxisAnchor>& anchor,
                                                                  double constant = 0) const {
        return constraintEqualTo(*anchor, constant);
    }
};
