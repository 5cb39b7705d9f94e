#pragma once

#include "UIKit/UIResponder.h"

/// The application that the code runs in. Made by the system, one in a process.
class UIApplication : public UIResponder {
public:
    [[nodiscard]] static Ref<UIApplication> sharedApplication();
};
