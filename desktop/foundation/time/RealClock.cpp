#include "time/RealClock.h"

#include "time/UnixTime.h"

std::chrono::nanoseconds RealClock::uptime() const {
    return std::chrono::steady_clock::now().time_since_epoch();
}

NSDate RealClock::date() const {
    const std::chrono::duration<double> seconds = std::chrono::system_clock::now().time_since_epoch();
    return dateOfUnixTime(seconds.count());
}
