#include "time/RealClock.h"

#include "time/UnixTime.h"

#include <gtest/gtest.h>

#include <ctime>

TEST(RealClockTest, UptimeNeverGoesBack) {
    const RealClock clock;
    auto before = clock.uptime();
    for (int i = 0; i < 10'000; ++i) {
        const auto now = clock.uptime();
        ASSERT_GE(now, before);
        before = now;
    }
}

TEST(RealClockTest, UptimeMovesOn) {
    const RealClock clock;
    const auto start = clock.uptime();
    int readings = 0;
    while (clock.uptime() == start)
        ASSERT_LT(++readings, 100'000'000);
    EXPECT_GT(clock.uptime(), start);
}

TEST(RealClockTest, DateIsTheHostsTime) {
    const auto before = std::time(nullptr);
    const auto date = unixTimeOf(RealClock().date());
    const auto after = std::time(nullptr);
    EXPECT_GE(date, static_cast<double>(before) - 1); // the host's coarse time lags a little
    EXPECT_LE(date, static_cast<double>(after) + 1);
}
