#pragma once

#include <functional>

/// Where an application asks to go to the background. Owned by the device. Main thread only.
class ApplicationSuspension {
public:
    using Handler = std::function<void()>;

    /// What brings the application to the background; empty while none runs.
    void setHandler(Handler handler) { handler_ = std::move(handler); }

    /// Passes the wish on. Without a handler nothing happens.
    void request() const;

private:
    Handler handler_;
};
