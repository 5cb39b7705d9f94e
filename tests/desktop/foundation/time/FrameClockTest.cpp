#include "time/FrameClock.h"

#include "time/UnixTime.h"

#include <gtest/gtest.h>

namespace {

void letTimePass() {
    const RealClock host;
    const auto start = host.uptime();
    const auto date = unixTimeOf(host.date());
    while (host.uptime() == start || unixTimeOf(host.date()) == date) {
    }
}

TEST(FrameClockTest, BeginsAtTheHostsTime) {
    const RealClock host;
    const auto before = host.uptime();
    const auto dateBefore = unixTimeOf(host.date());
    const FrameClock clock;
    EXPECT_GE(clock.uptime(), before);
    EXPECT_LE(clock.uptime(), host.uptime());
    EXPECT_GE(unixTimeOf(clock.date()), dateBefore);
    EXPECT_LE(unixTimeOf(clock.date()), unixTimeOf(host.date()));
}

TEST(FrameClockTest, StandsStillWithinAFrame) {
    const FrameClock clock;
    const auto uptime = clock.uptime();
    const auto date = unixTimeOf(clock.date());
    letTimePass();
    EXPECT_EQ(clock.uptime(), uptime);
    EXPECT_EQ(unixTimeOf(clock.date()), date);
}

TEST(FrameClockTest, MovesOnToTheHostsTimeWithTheNextFrame) {
    FrameClock clock;
    letTimePass();
    const RealClock host;
    const auto before = host.uptime();
    const auto dateBefore = unixTimeOf(host.date());
    clock.beginFrame();
    EXPECT_GE(clock.uptime(), before);
    EXPECT_LE(clock.uptime(), host.uptime());
    EXPECT_GE(unixTimeOf(clock.date()), dateBefore);
    EXPECT_LE(unixTimeOf(clock.date()), unixTimeOf(host.date()));
}

} // namespace
