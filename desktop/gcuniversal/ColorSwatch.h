#pragma once

#include "ColorComponents.h"
#include "UIKit/UIView.h"

/// A rounded patch of a colour; what is behind one that is not opaque is a chequered ground.
class ColorSwatch final : public UIView {
public:
    ColorSwatch();

    [[nodiscard]] const ColorComponents& color() const;

    void setColor(const ColorComponents& color);
};
