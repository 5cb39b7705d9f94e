// notification_poster FOLDER NAME: posts a Darwin notification on a device in the folder.

#include "CoreFoundation/DarwinNotifyCenter.h"
#include "Device.h"
#include "time/RealClock.h"

#include <memory>
#include <utility>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3)
        return 2;
    auto root = DeviceRoot::open(arguments[1]);
    if (!root)
        return 1;
    const Device device({.root = std::move(*root), .clock = std::make_unique<RealClock>()});
    DarwinNotifyCenter::postNotification(arguments[2]);
    return 0;
}
