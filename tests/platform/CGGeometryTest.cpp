#include "CoreGraphics/CGGeometry.h"

#include <gtest/gtest.h>

TEST(CGGeometry, AnswersEdgesAndMiddles) {
    constexpr CGRect rect = CGRectMake(10, 20, 30, 40);
    EXPECT_EQ(CGRectGetMidX(rect), 25);
    EXPECT_EQ(CGRectGetMidY(rect), 40);
    EXPECT_EQ(CGRectGetMaxX(rect), 40);
    EXPECT_EQ(CGRectGetMaxY(rect), 60);
}

TEST(CGGeometry, LeftAndTopEdgesAreInsideAndRightAndBottomAreNot) {
    constexpr CGRect rect = CGRectMake(10, 20, 30, 40);
    EXPECT_TRUE(CGRectContainsPoint(rect, {10, 20}));
    EXPECT_TRUE(CGRectContainsPoint(rect, {39.9, 59.9}));
    EXPECT_FALSE(CGRectContainsPoint(rect, {40, 30}));
    EXPECT_FALSE(CGRectContainsPoint(rect, {20, 60}));
    EXPECT_FALSE(CGRectContainsPoint(rect, {9.9, 30}));
}

TEST(CGGeometry, ARectangleWithoutAreaIsEmpty) {
    EXPECT_TRUE(CGRectIsEmpty(CGRect()));
    EXPECT_TRUE(CGRectIsEmpty(CGRectMake(5, 5, 0, 10)));
    EXPECT_TRUE(CGRectIsEmpty(CGRectMake(5, 5, 10, -1)));
    EXPECT_FALSE(CGRectIsEmpty(CGRectMake(0, 0, 0.1, 0.1)));
}

TEST(CGGeometry, InsetsShrinkAndNegativeOnesGrow) {
    EXPECT_EQ(UIEdgeInsetsInsetRect(CGRectMake(0, 0, 100, 50), {1, 2, 3, 4}), CGRectMake(2, 1, 94, 46));
    EXPECT_EQ(UIEdgeInsetsInsetRect(CGRectMake(0, 0, 10, 10), {-5, -5, -5, -5}), CGRectMake(-5, -5, 20, 20));
}
