#pragma once

#include "system/SessionBus.h"

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

/// The Darwin notifications posted on a device: their names are kept for whoever asks, and go to the host's
/// session bus, if there is one, as the signal `Posted` of `com.orvel.DarwinNotifyCenter`. Owned by the
/// device. Any thread.
class DarwinNotifications {
public:
    /// Keeps the name and sends it. A name that the bus cannot carry is kept and logged only.
    void post(std::string_view name);

    /// The names posted since the last call, in order.
    [[nodiscard]] std::vector<std::string> take();

private:
    std::mutex mutex_;
    std::vector<std::string> names_;
    SessionBus bus_;
};
