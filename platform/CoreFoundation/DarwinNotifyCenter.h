#pragma once

#include <string_view>

/// The Darwin notification centre: names without content, heard by every process of the system that wants to.
class DarwinNotifyCenter {
public:
    /// Posts a notification with no object and no user info, to be delivered immediately.
    static void postNotification(std::string_view name);
};
