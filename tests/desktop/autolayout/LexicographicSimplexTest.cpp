#include "LexicographicSimplex.h"

#include <gtest/gtest.h>

namespace {

/// x and y, zero or more and charged by size.
class LexicographicSimplexTest : public testing::Test {
protected:
    [[nodiscard]] SparseRow row(double constant, double ofX, double ofY = 0) const {
        SparseRow result;
        result.addConstant(constant);
        result.add(x, ofX);
        result.add(y, ofY);
        return result;
    }

    void expectValues(double ofX, double ofY) const {
        EXPECT_DOUBLE_EQ(simplex.value(x), ofX);
        EXPECT_DOUBLE_EQ(simplex.value(y), ofY);
    }

    LexicographicSimplex simplex;
    Symbol x = simplex.makeSize(0);
    Symbol y = simplex.makeSize(1);
};

} // namespace

TEST_F(LexicographicSimplexTest, AnEquationIsMetByTheCheapestSymbol) {
    EXPECT_TRUE(simplex.addEquation(row(-10, 1, 1)));
    expectValues(0, 10);
}

TEST_F(LexicographicSimplexTest, AnInequalityMovesNothingFurtherThanNeeded) {
    EXPECT_TRUE(simplex.addInequality(row(-10, 1)));
    EXPECT_TRUE(simplex.addInequality(row(50, -1)));
    expectValues(10, 0);
}

TEST_F(LexicographicSimplexTest, WhatSymbolsOfZeroOrMoreCannotMeetIsRefused) {
    EXPECT_FALSE(simplex.addEquation(row(10, 1, 1)));
    EXPECT_FALSE(simplex.addInequality(row(-1, -1)));
    expectValues(0, 0);
    EXPECT_TRUE(simplex.addEquation(row(-3, 1)));
    EXPECT_FALSE(simplex.addEquation(row(-4, 1)));
    expectValues(3, 0);
}

TEST_F(LexicographicSimplexTest, ARefusalAfterPivotsLeavesTheValues) {
    ASSERT_TRUE(simplex.addEquation(row(-10, 1, 1)));
    ASSERT_TRUE(simplex.addInequality(row(4, -1))); // x <= 4
    EXPECT_FALSE(simplex.addInequality(row(5, 0, -1)));
    expectValues(0, 10);
    EXPECT_TRUE(simplex.addInequality(row(6, 0, -1)));
    expectValues(4, 6);
}

TEST_F(LexicographicSimplexTest, ASoftEquationYieldsAndComesBack) {
    const auto soft = simplex.addSoftEquation(row(-10, 1), 250, 0);
    expectValues(10, 0);
    const auto limit = simplex.addInequality(row(7, -1));
    ASSERT_TRUE(limit);
    expectValues(7, 0);
    EXPECT_DOUBLE_EQ(simplex.value(soft[1]), 3);
    simplex.removeCondition(*limit);
    expectValues(10, 0);
}

TEST_F(LexicographicSimplexTest, ASoftInequalityIsChargedOnlyBelowZero) {
    ASSERT_TRUE(simplex.addEquation(row(-20, 1, 1)));
    simplex.addSoftInequality(row(-5, 1), 250, 0);
    expectValues(5, 15);
    simplex.addSoftEquation(row(-8, 1), 1, 1);
    expectValues(8, 12);
}

TEST_F(LexicographicSimplexTest, ARedundantEquationTakesTheOthersPlace) {
    const auto first = simplex.addEquation(row(-10, 1, 1));
    const auto second = simplex.addEquation(row(-20, 2, 2));
    ASSERT_TRUE(first);
    ASSERT_TRUE(second);
    simplex.removeCondition(*first);
    expectValues(0, 10);
    EXPECT_FALSE(simplex.addEquation(row(-11, 1, 1)));
    simplex.removeCondition(*second);
    expectValues(0, 0);
    EXPECT_TRUE(simplex.addEquation(row(-11, 1, 1)));
}

TEST_F(LexicographicSimplexTest, NoSymbolIsLeftOnceAllIsTakenBack) {
    const auto equation = simplex.addEquation(row(-10, 1, 1));
    const auto inequality = simplex.addInequality(row(-3, 1));
    const auto soft = simplex.addSoftEquation(row(-6, 0, 1), 750, 0);
    ASSERT_TRUE(equation && inequality);
    simplex.removeCondition(*equation);
    simplex.removeCondition(soft);
    simplex.removeCondition(*inequality);
    EXPECT_TRUE(simplex.hasSymbols());
    simplex.drop(x);
    simplex.drop(y);
    EXPECT_FALSE(simplex.hasSymbols());
}
