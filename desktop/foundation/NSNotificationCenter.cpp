#include "Foundation/NSNotificationCenter.h"

NSNotificationCenter& NSNotificationCenter::defaultCenter() {
    static NSNotificationCenter shared;
    return shared;
}

// Nobody can be entered as an observer, so there is never one to remove.
void NSNotificationCenter::removeObserver(const NSObject& /*observer*/) {}
