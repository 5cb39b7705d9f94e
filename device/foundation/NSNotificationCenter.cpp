#include "Foundation/NSNotificationCenter.h"

#include "Message.h"

NSNotificationCenter& NSNotificationCenter::defaultCenter() {
    static NSNotificationCenter shared;
    return shared;
}

void NSNotificationCenter::removeObserver(const NSObject& observer) {
    const AutoreleasePool pool;
    send<"-[NSNotificationCenter removeObserver:]", void>(
        sendToClass<"+[NSNotificationCenter defaultCenter]", id>(), observer);
}
