#include "CoreFoundation/DarwinNotifyCenter.h"

#include "CoreFoundation/CFString.h"
#include "Runtime.h"

struct NotificationCenterObject;

extern "C" {
NotificationCenterObject* CFNotificationCenterGetDarwinNotifyCenter();
void CFNotificationCenterPostNotification(NotificationCenterObject* center, CFStringRef name,
                                          const void* object, const void* userInfo, bool deliverImmediately);
}

void DarwinNotifyCenter::postNotification(std::string_view name) {
    const AutoreleasePool pool;
    const CFString text(name);
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(), text.ref(), nullptr,
                                         nullptr, true);
}
