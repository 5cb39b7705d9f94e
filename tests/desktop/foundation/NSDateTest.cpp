#include "Foundation/NSDate.h"

#include "TestDevice.h"

#include <gtest/gtest.h>

TEST(NSDateTest, NowIsWhatTheDevicesClockSays) {
    TestDevice device;
    const auto before = NSDate::date();
    EXPECT_EQ(before.description(), "2026-11-16 03:12:00 +0000");
    device.clock().moveTo(std::chrono::milliseconds(1500));
    EXPECT_EQ(NSDate::date().timeIntervalSinceReferenceDate, before.timeIntervalSinceReferenceDate + 1.5);
}
