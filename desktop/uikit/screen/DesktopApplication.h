#pragma once

#include "UIKit/UIApplication.h"

class UIWindow;

/// The application that runs on this desktop, as its own code sees it. One for the process, without a state
/// of its own: what its messages do is up to the device. Main thread only.
class DesktopApplication final : public UIApplication {
public:
    [[nodiscard]] static DesktopApplication& shared();

    /// The window that the user has in front; empty while there is none.
    [[nodiscard]] Ref<UIWindow> keyWindow() const;

    /// Goes to the background, as if the user had left.
    void suspend();
};
