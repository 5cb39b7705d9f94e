#pragma once

#include "UIKit/UIApplication.h"

#include <functional>

class UIWindow;

/// The application that runs on this desktop, as its own code sees it. One for the process; what its messages
/// do is up to who runs the application. Main thread only.
class DesktopApplication final : public UIApplication {
public:
    using Handler = std::function<void()>;

    [[nodiscard]] static DesktopApplication& shared();

    /// What brings the application to the background; empty while none runs.
    void setSuspendHandler(Handler handler) { suspendHandler_ = std::move(handler); }

    /// The window that the user has in front; empty while there is none.
    [[nodiscard]] Ref<UIWindow> keyWindow() const;

    /// Goes to the background, as if the user had left.
    void suspend();

private:
    Handler suspendHandler_;
};
