#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "Traits.h"
#include "UIKit/UITextField.h"

class QPainter;

/// What a text field draws around its text: the kinds of borders that it knows, and their measures.
struct TextFieldBorder {
    /// From a field's edges to its text.
    [[nodiscard]] static UIEdgeInsets textInsets(UITextBorderStyle style);

    /// How high a field of 17 points is that is given no height.
    [[nodiscard]] static double height(UITextBorderStyle style);

    /// \param bounds the field's
    static void draw(UITextBorderStyle style, QPainter& painter, const CGRect& bounds, const Traits& traits);
};
