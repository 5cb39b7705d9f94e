#include "AffineTransform.h"

#include <gtest/gtest.h>

namespace {

constexpr AffineTransform quarterTurn{.a = 0, .b = 1, .c = -1, .d = 0, .tx = 0, .ty = 0};

TEST(AffineTransform, LeavesPointsWhereTheyAreByDefault) {
    EXPECT_EQ(AffineTransform()(CGPoint{3, 4}), (CGPoint{3, 4}));
}

TEST(AffineTransform, TakesTheOtherMapFirst) {
    const auto map = AffineTransform::translation(10, 0).after(AffineTransform::scale(2));
    EXPECT_EQ(map(CGPoint{1, 1}), (CGPoint{12, 2}));
}

TEST(AffineTransform, CombinesTurnsAndShifts) {
    const auto map = quarterTurn.after(AffineTransform::translation(1, 2));
    EXPECT_EQ(map(CGPoint{0, 0}), (CGPoint{-2, 1}));
}

TEST(AffineTransform, MapsARectangleToTheUprightOneAroundIt) {
    EXPECT_EQ(quarterTurn(CGRectMake(1, 2, 10, 4)), CGRectMake(-6, 1, 4, 10));
}

TEST(AffineTransform, HasAMapBack) {
    const AffineTransform map{.a = 2, .b = 1, .c = -1, .d = 3, .tx = 5, .ty = -7};
    const auto back = map.inverse()(map(CGPoint{11, 13}));
    EXPECT_NEAR(back.x, 11, 1e-12);
    EXPECT_NEAR(back.y, 13, 1e-12);
}

} // namespace
