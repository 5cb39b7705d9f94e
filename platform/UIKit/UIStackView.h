#pragma once

#include "UIKit/UIView.h"

/// Along what a stack view lays its views. The numbers are the platform's.
enum class UILayoutConstraintAxis : int { Horizontal = 0, Vertical = 1 };

/// How the arranged subviews share the room along the axis. The numbers are the platform's.
enum class UIStackViewDistribution : int {
    Fill = 0,        ///< as large as their contents; one of them grows or shrinks to fill the stack
    FillEqually = 1, ///< all of one size
    EqualSpacing = 3 ///< as large as their contents, with gaps of one size
};

/// Where the arranged subviews stand across the axis. The numbers are the platform's.
enum class UIStackViewAlignment : int { Fill = 0, Leading = 1, Center = 3, Trailing = 4 };

/// Lays views in a row or a column: its arranged subviews, in their order. They are placed by constraints.
class UIStackView : public UIView {
public:
    UIStackView();

    /// A row until told otherwise.
    void setAxis(UILayoutConstraintAxis axis);
    void setDistribution(UIStackViewDistribution distribution);
    void setAlignment(UIStackViewAlignment alignment);
    /// Points between two arranged subviews.
    void setSpacing(double spacing);
    /// Whether the arranged subviews keep to the layout margins instead of the bounds.
    void setLayoutMarginsRelativeArrangement(bool relative);

    /// Adds it as a subview too, and lets constraints decide its frame.
    void addArrangedSubview(const Ref<UIView>& view);
};
