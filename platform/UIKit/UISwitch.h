#pragma once

#include "UIKit/UIControl.h"

/// The system's own switch. Its size is the system's.
class UISwitch : public UIControl {
public:
    UISwitch();
};
