#include "time/VirtualClock.h"

#include <algorithm>

void VirtualClock::moveTo(std::chrono::nanoseconds uptime) {
    uptime_ = std::max(uptime_, uptime);
}

NSDate VirtualClock::date() const {
    return {start_.timeIntervalSinceReferenceDate + std::chrono::duration<double>(uptime_).count()};
}
