#include "LexicographicCosts.h"

#include <gtest/gtest.h>

namespace {

class LexicographicCostsTest : public testing::Test {
protected:
    LexicographicCostsTest() {
        for (const auto symbol : {a, b, c, d})
            costs.discharge(symbol);
    }

    void setRow(Symbol basic, double ofA, double ofB) {
        SparseRow row;
        row.add(a, ofA);
        row.add(b, ofB);
        tableau.addRow(basic, row);
    }

    SimplexTableau tableau;
    Symbol a = tableau.makeSymbol();
    Symbol b = tableau.makeSymbol();
    Symbol c = tableau.makeSymbol();
    Symbol d = tableau.makeSymbol();
    LexicographicCosts costs;
};

} // namespace

TEST_F(LexicographicCostsTest, WhatIsNotChargedCostsNothing) {
    setRow(c, 1, 1);
    EXPECT_EQ(costs.sign(tableau, a), 0);
}

TEST_F(LexicographicCostsTest, AddsTheSymbolsOwnChargeAndThatOfTheRowsItIsIn) {
    costs.chargeError(a, 750, 0);
    costs.chargeError(c, 750, 1);
    setRow(c, -0.5, -0.5);
    EXPECT_EQ(costs.sign(tableau, a), 1);
    EXPECT_EQ(costs.sign(tableau, b), -1);
    costs.discharge(a);
    EXPECT_EQ(costs.sign(tableau, a), -1);
}

TEST_F(LexicographicCostsTest, AHigherPriorityOutweighsAnyAmountOfALowerOne) {
    costs.chargeError(c, 250.5, 0);
    costs.chargeError(d, 250, 1);
    setRow(c, 1e-3, 0);
    setRow(d, -1e6, 0);
    EXPECT_EQ(costs.sign(tableau, a), 1);
}

TEST_F(LexicographicCostsTest, OfEqualSumsTheOldestErrorDecides) {
    costs.chargeError(c, 250, 2);
    costs.chargeError(d, 250, 1);
    setRow(c, -1, 1);
    setRow(d, 1, -1);
    EXPECT_EQ(costs.sign(tableau, a), 1);
    EXPECT_EQ(costs.sign(tableau, b), -1);
}

TEST_F(LexicographicCostsTest, SumsOfAllPrioritiesComeBeforeSingleErrors) {
    costs.chargeError(a, 1, 9);
    costs.chargeError(c, 250, 2);
    costs.chargeError(d, 250, 1);
    setRow(c, 1, 0);
    setRow(d, -1, 0);
    EXPECT_EQ(costs.sign(tableau, a), 1);
}

TEST_F(LexicographicCostsTest, SizesCountLastAndTheFirstVariableMost) {
    costs.chargeSize(c, 1);
    costs.chargeSize(d, 2);
    setRow(c, -1, 1);
    setRow(d, 5, -5);
    EXPECT_EQ(costs.sign(tableau, a), -1);
    costs.chargeError(a, 1, 0);
    EXPECT_EQ(costs.sign(tableau, a), 1);
}

TEST_F(LexicographicCostsTest, ComparesAtARateOfExchange) {
    costs.chargeError(a, 750, 0);
    costs.chargeError(b, 750, 1);
    EXPECT_TRUE(costs.isCheaper(tableau, a, b, 2));
    EXPECT_FALSE(costs.isCheaper(tableau, a, b, 0.5));
    EXPECT_FALSE(costs.isCheaper(tableau, a, b, 1)) << "the older one's error costs more";
    EXPECT_TRUE(costs.isCheaper(tableau, b, a, 1));
}
