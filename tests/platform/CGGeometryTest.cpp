#include "CoreGraphics/CGGeometry.h"

#include <gtest/gtest.h>

TEST(CGGeometry, ARectangleWithoutAreaIsEmpty) {
    EXPECT_TRUE(CGRectIsEmpty(CGRect()));
    EXPECT_TRUE(CGRectIsEmpty(CGRectMake(5, 5, 0, 10)));
    EXPECT_TRUE(CGRectIsEmpty(CGRectMake(5, 5, 10, -1)));
    EXPECT_FALSE(CGRectIsEmpty(CGRectMake(0, 0, 0.1, 0.1)));
}
