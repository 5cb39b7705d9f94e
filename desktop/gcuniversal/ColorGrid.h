#pragma once

#include "UIKit/UIControl.h"

/// A field of colours to choose from: grays in the first line, and below a hue in each column, from dark to
/// light.
class ColorGrid final : public UIControl {
public:
    ColorGrid();
};
