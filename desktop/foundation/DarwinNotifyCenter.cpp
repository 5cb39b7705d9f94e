#include "CoreFoundation/DarwinNotifyCenter.h"

#include "Device.h"
#include "system/DarwinNotifications.h"

void DarwinNotifyCenter::postNotification(std::string_view name) {
    Device::current().notifications().post(name);
}
