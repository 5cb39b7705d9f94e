#include "SimplexTableau.h"

#include <gtest/gtest.h>

namespace {

/// c = 10 + a - 2 b and d = 4 + 3 b.
class SimplexTableauTest : public testing::Test {
protected:
    SimplexTableauTest() {
        SparseRow row;
        row.addConstant(10);
        row.add(a, 1);
        row.add(b, -2);
        tableau.addRow(c, row);
        SparseRow other;
        other.addConstant(4);
        other.add(b, 3);
        tableau.addRow(d, other);
    }

    SimplexTableau tableau;
    Symbol a = tableau.makeSymbol();
    Symbol b = tableau.makeSymbol();
    Symbol c = tableau.makeSymbol();
    Symbol d = tableau.makeSymbol();
};

} // namespace

TEST_F(SimplexTableauTest, BasicSymbolsHaveTheConstantsAndOthersAreZero) {
    EXPECT_EQ(tableau.value(c), 10);
    EXPECT_EQ(tableau.value(d), 4);
    EXPECT_EQ(tableau.value(a), 0);
    EXPECT_TRUE(tableau.isBasic(c));
    EXPECT_FALSE(tableau.isBasic(a));
    EXPECT_EQ(tableau.column(b), (std::vector<Symbol>{c, d}));
}

TEST_F(SimplexTableauTest, ANewRowIsPutInTermsOfWhatIsNotBasic) {
    const auto e = tableau.makeSymbol();
    SparseRow row;
    row.add(c, 3);
    row.add(d, 2);
    tableau.addRow(e, row); // 3 c + 2 d = 38 + 3 a, without b
    EXPECT_EQ(tableau.value(e), 38);
    ASSERT_EQ(tableau.row(e).terms().size(), 1U);
    EXPECT_EQ(tableau.row(e).coefficient(a), 3);
    EXPECT_EQ(tableau.column(a), (std::vector<Symbol>{c, e}));
    EXPECT_EQ(tableau.column(b), (std::vector<Symbol>{c, d}));
}

TEST_F(SimplexTableauTest, PivotingSolvesForTheOtherSymbolEverywhere) {
    EXPECT_EQ(tableau.pivot(c, b), std::vector<Symbol>{d}); // b = 5 + a / 2 - c / 2
    EXPECT_EQ(tableau.value(b), 5);
    EXPECT_EQ(tableau.value(c), 0);
    EXPECT_EQ(tableau.value(d), 19);
    EXPECT_EQ(tableau.row(d).coefficient(a), 1.5);
    EXPECT_EQ(tableau.row(d).coefficient(c), -1.5);
    EXPECT_EQ(tableau.column(a), (std::vector<Symbol>{b, d}));
    EXPECT_EQ(tableau.column(c), (std::vector<Symbol>{b, d}));
    EXPECT_TRUE(tableau.column(b).empty());
}

TEST_F(SimplexTableauTest, PivotingBackRestoresTheRows) {
    tableau.pivot(c, b);
    tableau.pivot(b, c);
    EXPECT_EQ(tableau.value(c), 10);
    EXPECT_EQ(tableau.value(d), 4);
    EXPECT_EQ(tableau.row(d).terms().size(), 1U);
    EXPECT_EQ(tableau.column(a), std::vector<Symbol>{c});
}

TEST_F(SimplexTableauTest, IsEmptyOnceRowsAndSymbolsAreGone) {
    tableau.removeRow(c);
    tableau.removeRow(d);
    EXPECT_TRUE(tableau.column(b).empty());
    for (const auto symbol : {a, b, c, d}) {
        EXPECT_TRUE(tableau.hasSymbols());
        tableau.dropSymbol(symbol);
    }
    EXPECT_FALSE(tableau.hasSymbols());
    EXPECT_EQ(tableau.makeSymbol(), d) << "numbers are used again";
}

TEST_F(SimplexTableauTest, ADroppedSymbolLeavesTheRows) {
    tableau.dropSymbol(b);
    EXPECT_EQ(tableau.row(c).terms().size(), 1U);
    EXPECT_TRUE(tableau.row(d).terms().empty());
}
