#include "ShownShape.h"

#include <gtest/gtest.h>

namespace {

const CGRect below = CGRectMake(10, 30, 100, 200);

ShownShape square() {
    return {.frame = below};
}

ShownShape round() {
    return {.frame = below, .cornerRadius = 20};
}

} // namespace

TEST(ShownShapeTest, CoversWhatIsWithinIt) {
    EXPECT_TRUE(square().covers(below));
    EXPECT_TRUE(square().covers(CGRectMake(11, 31, 5, 5)));
    EXPECT_FALSE(square().covers(CGRectMake(9, 31, 5, 5)));
    EXPECT_FALSE(square().covers(CGRectMake(11, 29, 5, 5)));
    EXPECT_FALSE(square().covers(CGRectMake(106, 31, 5, 5)));
    EXPECT_FALSE(square().covers(CGRectMake(11, 226, 5, 5)));
}

TEST(ShownShapeTest, CoversNothingBeyondTheBendOfAnUpperCorner) {
    EXPECT_FALSE(round().covers(CGRectMake(11, 31, 5, 5)));
    EXPECT_FALSE(round().covers(CGRectMake(104, 31, 5, 5)));
    EXPECT_TRUE(round().covers(CGRectMake(50, 30.5, 20, 5)));
    EXPECT_TRUE(round().covers(CGRectMake(20, 40, 5, 5)));
    EXPECT_TRUE(round().covers(CGRectMake(10.5, 224, 5, 5))) << "the lower ones do not count";
}

TEST(ShownShapeTest, ReachesWhatHasAPartInCommonWithIt) {
    EXPECT_TRUE(round().reaches(CGRectMake(50, 20, 10, 11)));
    EXPECT_FALSE(round().reaches(CGRectMake(50, 20, 10, 10)));
    EXPECT_FALSE(round().reaches(CGRectMake(0, 100, 10, 10)));
    EXPECT_FALSE((ShownShape{.frame = CGRectMake(0, 40, 100, 0)}.reaches(CGRectMake(0, 0, 100, 100))));
}
