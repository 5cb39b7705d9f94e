#pragma once

#include "UIKit/UIControl.h"

/// A thumb on a track, which stands for a number between two others.
class UISlider final : public UIControl {
public:
    UISlider();
};
