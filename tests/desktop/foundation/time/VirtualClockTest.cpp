#include "time/VirtualClock.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

TEST(VirtualClock, StandsStillUntilItIsMoved) {
    VirtualClock clock({100.0});
    EXPECT_EQ(clock.uptime(), 0ns);
    EXPECT_EQ(clock.date().timeIntervalSinceReferenceDate, 100.0);
    clock.moveTo(1500ms);
    EXPECT_EQ(clock.uptime(), 1500ms);
    EXPECT_EQ(clock.date().timeIntervalSinceReferenceDate, 101.5);
}

TEST(VirtualClock, NeverGoesBack) {
    VirtualClock clock({0});
    clock.moveTo(2s);
    clock.moveTo(1s);
    EXPECT_EQ(clock.uptime(), 2s);
}
