#pragma once

#include "UIKit/UIControl.h"

/// A few titles side by side, of which one is chosen.
class UISegmentedControl final : public UIControl {
public:
    UISegmentedControl();
};
