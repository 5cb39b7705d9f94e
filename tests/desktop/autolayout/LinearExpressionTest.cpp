#include "LinearExpression.h"

#include <gtest/gtest.h>

#include <limits>

TEST(LinearExpression, GathersTheTermsOfAVariable) {
    const LinearVariable x;
    const LinearVariable y;
    const LinearExpression sum = 2 * x + y - 16 + 0.5 * x - (y + y) + 4;
    ASSERT_EQ(sum.terms().size(), 2U);
    EXPECT_EQ(sum.terms()[0].variable, x);
    EXPECT_EQ(sum.terms()[0].coefficient, 2.5);
    EXPECT_EQ(sum.terms()[1].variable, y);
    EXPECT_EQ(sum.terms()[1].coefficient, -1);
    EXPECT_EQ(sum.constant(), -12);
}

TEST(LinearExpression, TakesItselfAsTheOther) {
    const LinearVariable x;
    LinearExpression doubled = x + 5;
    const auto& same = doubled;
    doubled += same;
    EXPECT_EQ(doubled.terms()[0].coefficient, 2);
    EXPECT_EQ(doubled.constant(), 10);
    doubled -= same;
    EXPECT_EQ(doubled.terms()[0].coefficient, 0);
    EXPECT_EQ(doubled.constant(), 0);
}

TEST(LinearExpression, IsFiniteWhenAllItsNumbersAre) {
    const LinearVariable x;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE((x + 1e300).isFinite());
    EXPECT_FALSE((x + infinity).isFinite());
    EXPECT_FALSE((infinity * x).isFinite());
    EXPECT_FALSE((std::numeric_limits<double>::quiet_NaN() * x).isFinite());
}
