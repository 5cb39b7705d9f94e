#include "Foundation/NSDate.h"

#include "Device.h"

NSDate NSDate::date() {
    return Device::current().clock().date();
}
