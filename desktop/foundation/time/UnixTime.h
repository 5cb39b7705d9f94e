#pragma once

#include "Foundation/NSDate.h"

// Moments as the host counts them: in seconds since 1970-01-01 00:00 UTC.

[[nodiscard]] constexpr NSDate dateOfUnixTime(double seconds) {
    return {seconds - NSDate::timeIntervalBetween1970AndReferenceDate};
}

[[nodiscard]] constexpr double unixTimeOf(const NSDate& date) {
    return date.timeIntervalSinceReferenceDate + NSDate::timeIntervalBetween1970AndReferenceDate;
}
