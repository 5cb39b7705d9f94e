#include "SparseRow.h"

#include <gtest/gtest.h>

namespace {

SparseRow makeRow(double constant, const std::vector<SparseRow::Term>& terms) {
    SparseRow row;
    row.addConstant(constant);
    for (const auto& term : terms)
        row.add(term.symbol, term.coefficient);
    return row;
}

} // namespace

TEST(SparseRow, KeepsTermsInOrderOfSymbols) {
    const auto row = makeRow(1, {{7, 2}, {3, -1}, {5, 4}});
    ASSERT_EQ(row.terms().size(), 3U);
    EXPECT_EQ(row.terms()[0].symbol, 3U);
    EXPECT_EQ(row.terms()[1].symbol, 5U);
    EXPECT_EQ(row.terms()[2].symbol, 7U);
    EXPECT_EQ(row.coefficient(5), 4);
    EXPECT_EQ(row.coefficient(4), 0);
    EXPECT_EQ(row.coefficient(9), 0);
}

TEST(SparseRow, AddingTellsWhatItGainsAndLoses) {
    auto row = makeRow(1, {{1, 2}, {2, 3}, {6, 1}});
    const auto change = row.add(makeRow(10, {{0, 1}, {1, 1}, {2, 1.5}, {4, 2}}), -2);
    EXPECT_EQ(row.constant(), -19);
    EXPECT_EQ(change.gained, (std::vector<Symbol>{0, 4}));
    EXPECT_EQ(change.lost, (std::vector<Symbol>{1, 2}));
    ASSERT_EQ(row.terms().size(), 3U);
    EXPECT_EQ(row.coefficient(0), -2);
    EXPECT_EQ(row.coefficient(4), -4);
    EXPECT_EQ(row.coefficient(6), 1);
}

TEST(SparseRow, ForgetsWhatRoundingLeaves) {
    auto row = makeRow(0, {{1, 0.1}});
    row.add(1, 0.2);
    row.add(1, -0.3);
    EXPECT_TRUE(row.terms().empty());
}

TEST(SparseRow, SolvesForOneOfItsSymbols) {
    // s5 = 6 + 2 s1 - 4 s8, so s8 = 1.5 + 0.5 s1 - 0.25 s5
    auto row = makeRow(6, {{1, 2}, {8, -4}});
    row.solveFor(8, 5);
    EXPECT_EQ(row.constant(), 1.5);
    ASSERT_EQ(row.terms().size(), 2U);
    EXPECT_EQ(row.coefficient(1), 0.5);
    EXPECT_EQ(row.coefficient(5), -0.25);
}
