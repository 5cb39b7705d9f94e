#include "RectGeometry.h"

#include <gtest/gtest.h>

TEST(RectGeometry, AnswersEdgesAndMiddles) {
    constexpr CGRect rect = CGRectMake(10, 20, 30, 40);
    EXPECT_EQ(CGRectGetMidX(rect), 25);
    EXPECT_EQ(CGRectGetMidY(rect), 40);
    EXPECT_EQ(CGRectGetMaxX(rect), 40);
    EXPECT_EQ(CGRectGetMaxY(rect), 60);
}

TEST(RectGeometry, LeftAndTopEdgesAreInsideAndRightAndBottomAreNot) {
    constexpr CGRect rect = CGRectMake(10, 20, 30, 40);
    EXPECT_TRUE(CGRectContainsPoint(rect, {10, 20}));
    EXPECT_TRUE(CGRectContainsPoint(rect, {39.9, 59.9}));
    EXPECT_FALSE(CGRectContainsPoint(rect, {40, 30}));
    EXPECT_FALSE(CGRectContainsPoint(rect, {20, 60}));
    EXPECT_FALSE(CGRectContainsPoint(rect, {9.9, 30}));
}

TEST(RectGeometry, InsetsShrinkAndNegativeOnesGrow) {
    EXPECT_EQ(UIEdgeInsetsInsetRect(CGRectMake(0, 0, 100, 50), {1, 2, 3, 4}), CGRectMake(2, 1, 94, 46));
    EXPECT_EQ(UIEdgeInsetsInsetRect(CGRectMake(0, 0, 10, 10), {-5, -5, -5, -5}), CGRectMake(-5, -5, 20, 20));
}
