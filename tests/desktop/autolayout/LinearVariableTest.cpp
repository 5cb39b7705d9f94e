#include "LinearVariable.h"

#include <gtest/gtest.h>

TEST(LinearVariable, IsUnlikeAllOthersAndLikeItsCopies) {
    const LinearVariable first;
    const LinearVariable second;
    const auto copy = first;
    EXPECT_EQ(copy, first);
    EXPECT_NE(second, first);
}

TEST(LinearVariable, IsOrderedByMaking) {
    const LinearVariable first;
    const LinearVariable second;
    EXPECT_LT(first, second);
    EXPECT_LT(first.number(), second.number());
}
