#include "LinearConstraint.h"

#include <gtest/gtest.h>

TEST(LinearConstraint, HoldsTheDifferenceOfItsSides) {
    const LinearVariable x;
    const LinearVariable y;
    const LinearConstraint constraint(x + 3, LinearRelation::LessOrEqual, 2 * y + 10, 750);
    EXPECT_EQ(constraint.difference().constant(), -7);
    ASSERT_EQ(constraint.difference().terms().size(), 2U);
    EXPECT_EQ(constraint.difference().terms()[0].coefficient, 1);
    EXPECT_EQ(constraint.difference().terms()[1].coefficient, -2);
    EXPECT_EQ(constraint.relation(), LinearRelation::LessOrEqual);
    EXPECT_EQ(constraint.priority(), 750);
}

TEST(LinearConstraint, IsRequiredFromAThousandOn) {
    const LinearVariable x;
    EXPECT_TRUE(LinearConstraint(x, LinearRelation::Equal, 1).isRequired());
    EXPECT_TRUE(LinearConstraint(x, LinearRelation::Equal, 1, 1001).isRequired());
    EXPECT_FALSE(LinearConstraint(x, LinearRelation::Equal, 1, 999.5).isRequired());
}
