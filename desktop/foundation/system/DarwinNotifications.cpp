#include "system/DarwinNotifications.h"

#include "Foundation/NSData.h"
#include "Foundation/NSLog.h"

#include <utility>

void DarwinNotifications::post(std::string_view name) {
    const std::scoped_lock lock(mutex_);
    names_.emplace_back(name);
    const auto& kept = names_.back();
    if (!SessionBus::canCarry(kept)) {
        NSLog("The session bus cannot carry the name of a Darwin notification: %@",
              NSData::dataWithBytes(name).description());
        return;
    }
    bus_.emitSignal({.path = "/com/orvel/DarwinNotifyCenter",
                     .interface = "com.orvel.DarwinNotifyCenter",
                     .member = "Posted",
                     .argument = kept});
}

std::vector<std::string> DarwinNotifications::take() {
    const std::scoped_lock lock(mutex_);
    return std::exchange(names_, {});
}
