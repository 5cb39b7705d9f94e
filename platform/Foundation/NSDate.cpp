#include "Foundation/NSDate.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

std::string NSDate::description() const {
    // The years that a calendar can count; moments beyond them print as their number.
    constexpr double secondsOf30000Years = 30000.0 * 366 * 86400;
    std::array<char, 64> text{};
    if (!(std::fabs(timeIntervalSinceReferenceDate) < secondsOf30000Years)) {
        std::snprintf(text.data(), text.size(), "%.0f", timeIntervalSinceReferenceDate);
        return text.data();
    }
    using namespace std::chrono;
    const double since1970 = timeIntervalSinceReferenceDate + timeIntervalBetween1970AndReferenceDate;
    const sys_seconds moment(seconds(static_cast<std::int64_t>(std::floor(since1970))));
    const auto day = floor<days>(moment);
    const year_month_day date(day);
    const hh_mm_ss time(moment - day);
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02d:%02d:%02d +0000",
                  static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                  static_cast<unsigned>(date.day()), static_cast<int>(time.hours().count()),
                  static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
    return text.data();
}
