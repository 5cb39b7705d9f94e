#include "Foundation/NSDate.h"

#include <gtest/gtest.h>

#include <limits>

TEST(NSDate, CountsFromTheStartOf2001) {
    EXPECT_EQ(NSDate().timeIntervalSinceReferenceDate, 0);
    EXPECT_EQ(NSDate::timeIntervalBetween1970AndReferenceDate, 978307200);
}

TEST(NSDate, ComparesByTime) {
    EXPECT_LT(NSDate{1}, NSDate{2});
    EXPECT_EQ(NSDate{1}, NSDate{1});
}

TEST(NSDate, DescribesItselfToTheSecondInUTC) {
    EXPECT_EQ(NSDate{0}.description(), "2001-01-01 00:00:00 +0000");
    EXPECT_EQ(NSDate{1794798720.9 - NSDate::timeIntervalBetween1970AndReferenceDate}.description(),
              "2026-11-16 03:12:00 +0000");
    EXPECT_EQ(NSDate{-0.5 - NSDate::timeIntervalBetween1970AndReferenceDate}.description(),
              "1969-12-31 23:59:59 +0000");
    EXPECT_EQ(NSDate{951782400 - NSDate::timeIntervalBetween1970AndReferenceDate}.description(),
              "2000-02-29 00:00:00 +0000");
    EXPECT_EQ(NSDate{-63113904000.0}.description(), "0001-01-01 00:00:00 +0000");
}

TEST(NSDate, MomentsThatNoCalendarCountsPrintAsNumbers) {
    EXPECT_EQ(NSDate{1e15}.description(), "1000000000000000");
    EXPECT_EQ(NSDate{-std::numeric_limits<double>::infinity()}.description(), "-inf");
    EXPECT_EQ(NSDate{std::numeric_limits<double>::quiet_NaN()}.description().substr(0, 3), "nan");
}
