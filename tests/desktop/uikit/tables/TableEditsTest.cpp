#include "tables/TableEdits.h"

#include <gtest/gtest.h>

namespace {

/// Of six rows a to f, b and e are taken out and X and Y put in: a X c d Y f.
TableEdits bAndEAgainstXAndY() {
    TableEdits edits;
    edits.deleteRows({{1, 1}, {1, 4}});
    edits.insertRows({{1, 1}, {1, 4}});
    return edits;
}

using MaybePath = std::optional<IndexPath>;

} // namespace

TEST(TableEdits, TellsWhereRowsHaveGone) {
    const auto edits = bAndEAgainstXAndY();
    EXPECT_EQ(edits.after({1, 0}), MaybePath({1, 0}));
    EXPECT_EQ(edits.after({1, 1}), std::nullopt);
    EXPECT_EQ(edits.after({1, 2}), MaybePath({1, 2}));
    EXPECT_EQ(edits.after({1, 4}), std::nullopt);
    EXPECT_EQ(edits.after({1, 5}), MaybePath({1, 5}));
}

TEST(TableEdits, TellsWhereRowsHaveComeFrom) {
    TableEdits edits;
    edits.deleteRows({{0, 0}, {0, 1}});
    edits.insertRows({{0, 3}});
    EXPECT_EQ(edits.before({0, 0}), MaybePath({0, 2}));
    EXPECT_EQ(edits.before({0, 2}), MaybePath({0, 4}));
    EXPECT_EQ(edits.before({0, 3}), std::nullopt);
    EXPECT_EQ(edits.before({0, 4}), MaybePath({0, 5}));
}

TEST(TableEdits, BeforeAndAfterUndoEachOther) {
    const auto edits = bAndEAgainstXAndY();
    for (std::size_t row = 0; row < 6; ++row) {
        const auto after = edits.after({1, row});
        EXPECT_TRUE(!after || edits.before(*after) == MaybePath({1, row})) << row;
    }
}

TEST(TableEdits, LeavesOtherSectionsAlone) {
    const auto edits = bAndEAgainstXAndY();
    EXPECT_EQ(edits.after({0, 4}), MaybePath({0, 4}));
    EXPECT_EQ(edits.before({2, 1}), MaybePath({2, 1}));
    EXPECT_EQ(edits.countAfter(0, 7), 7U);
}

TEST(TableEdits, CountsTheRowsAfter) {
    TableEdits edits;
    edits.deleteRows({{0, 2}});
    edits.insertRows({{0, 0}, {0, 3}});
    EXPECT_EQ(edits.countAfter(0, 3), 4U);
}

TEST(TableEdits, RowsThatCannotBeHaveNoCount) {
    TableEdits deleting;
    deleting.deleteRows({{0, 3}});
    EXPECT_EQ(deleting.countAfter(0, 3), std::nullopt);
    TableEdits inserting;
    inserting.insertRows({{0, 4}});
    EXPECT_EQ(inserting.countAfter(0, 3), std::nullopt);
    TableEdits reloading;
    reloading.reloadRows({{0, 3}});
    EXPECT_EQ(reloading.countAfter(0, 3), std::nullopt);
}

TEST(TableEdits, RemembersWhatIsReloaded) {
    TableEdits edits;
    edits.reloadRows({{0, 1}});
    EXPECT_TRUE(edits.isReloaded({0, 1}));
    EXPECT_FALSE(edits.isReloaded({0, 0}));
    EXPECT_EQ(edits.after({0, 1}), MaybePath({0, 1}));
}
