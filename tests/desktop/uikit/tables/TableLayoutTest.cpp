#include "tables/TableLayout.h"

#include <gtest/gtest.h>

namespace {

using Span = TableLayout::Span;
using Rows = std::vector<IndexPath>;

/// 35 + 44 + 0 + 60 + 18, then 18 + 44 + 20.
TableLayout twoSections() {
    return TableLayout(
        {{.header = 35, .rows = {44, 0, 60}, .footer = 18}, {.header = 18, .rows = {44}, .footer = 20}});
}

} // namespace

TEST(TableLayout, StacksHeadersRowsAndFooters) {
    const auto layout = twoSections();
    EXPECT_EQ(layout.header(0), (Span{0, 35}));
    EXPECT_EQ(layout.row({0, 0}), (Span{35, 44}));
    EXPECT_EQ(layout.row({0, 1}), (Span{79, 0}));
    EXPECT_EQ(layout.row({0, 2}), (Span{79, 60}));
    EXPECT_EQ(layout.footer(0), (Span{139, 18}));
    EXPECT_EQ(layout.header(1), (Span{157, 18}));
    EXPECT_EQ(layout.row({1, 0}), (Span{175, 44}));
    EXPECT_EQ(layout.footer(1), (Span{219, 20}));
    EXPECT_EQ(layout.height(), 239);
}

TEST(TableLayout, KnowsWhatThereIs) {
    const auto layout = twoSections();
    EXPECT_EQ(layout.sectionCount(), 2U);
    EXPECT_EQ(layout.rowCount(0), 3U);
    EXPECT_TRUE(layout.contains({0, 2}));
    EXPECT_FALSE(layout.contains({0, 3}));
    EXPECT_FALSE(layout.contains({2, 0}));
    EXPECT_EQ(TableLayout().height(), 0);
}

TEST(TableLayout, FindsTheRowsInAStretch) {
    const auto layout = twoSections();
    EXPECT_EQ(layout.rowsBetween(0, 35), Rows());
    EXPECT_EQ(layout.rowsBetween(0, 35.5), (Rows{{0, 0}}));
    EXPECT_EQ(layout.rowsBetween(79, 80), (Rows{{0, 2}}));
    EXPECT_EQ(layout.rowsBetween(78, 200), (Rows{{0, 0}, {0, 1}, {0, 2}, {1, 0}}));
    EXPECT_EQ(layout.rowsBetween(219, 1000), Rows());
}

TEST(TableLayout, FindsTheSectionsInAStretch) {
    const auto layout = twoSections();
    EXPECT_EQ(layout.sectionsBetween(0, 157), (std::vector<std::size_t>{0}));
    EXPECT_EQ(layout.sectionsBetween(156, 158), (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(layout.sectionsBetween(157, 500), (std::vector<std::size_t>{1}));
    EXPECT_TRUE(layout.sectionsBetween(239, 500).empty());
}

TEST(TableLayout, HiddenRowsAreNoEndsOfACard) {
    const TableLayout layout({{.header = 0, .rows = {0, 44, 44, 0}, .footer = 0}});
    EXPECT_TRUE(layout.isFirstShown({0, 1}));
    EXPECT_FALSE(layout.isFirstShown({0, 2}));
    EXPECT_FALSE(layout.isLastShown({0, 1}));
    EXPECT_TRUE(layout.isLastShown({0, 2}));
}
