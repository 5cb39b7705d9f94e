#include "tables/TableFixture.h"

namespace {

using namespace std::chrono_literals;
using Paths = std::vector<IndexPath>;

class UITableViewSelectionTest : public TableFixture {
protected:
    UITableViewSelectionTest() {
        content_.sections = {NotedContent::sectionOf(30)};
        show();
    }

    /// Of the row's background, as it is seen now.
    [[nodiscard]] double shownRed(IndexPath row) const {
        const auto& slice = cell(row).peer().subviews().front()->peer();
        return slice.subviews().front()->layer().peer().shownValue(LayerProperty::BackgroundColor)[0];
    }
};

constexpr double pressedRed = 209.0 / 255;

} // namespace

TEST_F(UITableViewSelectionTest, ATapSelects) {
    tap(middleOf({0, 2}));
    advance(1s);
    EXPECT_EQ(content_.selected, (Paths{{0, 2}}));
    EXPECT_EQ(peer().selectedRow(), (IndexPath{0, 2}));
    EXPECT_TRUE(peerOf<UITableViewCellPeer>(cell({0, 2})).isSelected());
    EXPECT_FALSE(peerOf<UITableViewCellPeer>(cell({0, 2})).isHighlighted());
}

TEST_F(UITableViewSelectionTest, AFingerThatRestsHighlights) {
    down(middleOf({0, 2}));
    EXPECT_FALSE(peerOf<UITableViewCellPeer>(cell({0, 2})).isHighlighted());
    advance(200ms);
    EXPECT_TRUE(peerOf<UITableViewCellPeer>(cell({0, 2})).isHighlighted());
    EXPECT_NEAR(shownRed({0, 2}), pressedRed, 0.01);
    EXPECT_TRUE(content_.selected.empty());
    up(middleOf({0, 2}));
    EXPECT_EQ(content_.selected, (Paths{{0, 2}}));
}

TEST_F(UITableViewSelectionTest, ADragTakesTheHighlightAway) {
    auto place = middleOf({0, 5});
    down(place);
    advance(200ms);
    for (auto step = 0; step < 6; ++step) {
        place.y -= 10;
        move(place);
    }
    EXPECT_FALSE(peerOf<UITableViewCellPeer>(cell({0, 5})).isHighlighted());
    up(place);
    advance(3s);
    EXPECT_TRUE(content_.selected.empty());
}

TEST_F(UITableViewSelectionTest, ACancelledTouchSelectsNothing) {
    down(middleOf({0, 2}));
    advance(200ms);
    cancel();
    EXPECT_FALSE(peerOf<UITableViewCellPeer>(cell({0, 2})).isHighlighted());
    EXPECT_TRUE(content_.selected.empty());
}

TEST_F(UITableViewSelectionTest, SomeRowsCannotBeSelected) {
    content_.unselectable.insert({0, 2});
    down(middleOf({0, 2}));
    advance(200ms);
    EXPECT_FALSE(peerOf<UITableViewCellPeer>(cell({0, 2})).isHighlighted());
    up(middleOf({0, 2}));
    EXPECT_TRUE(content_.selected.empty());
}

TEST_F(UITableViewSelectionTest, AnotherRowTakesTheSelection) {
    tap(middleOf({0, 2}));
    advance(1s);
    tap(middleOf({0, 4}));
    advance(1s);
    EXPECT_EQ(content_.selected, (Paths{{0, 2}, {0, 4}}));
    EXPECT_FALSE(peerOf<UITableViewCellPeer>(cell({0, 2})).isSelected());
    EXPECT_TRUE(peerOf<UITableViewCellPeer>(cell({0, 4})).isSelected());
}

TEST_F(UITableViewSelectionTest, TheSelectedRowDoesNotLookSoWhileAnotherOneIsPressed) {
    peer().selectRow({0, 1});
    down(middleOf({0, 2}));
    advance(200ms);
    EXPECT_EQ(shownRed({0, 1}), 1);
    EXPECT_NEAR(shownRed({0, 2}), pressedRed, 1e-6);
    cancel();
    EXPECT_NEAR(shownRed({0, 1}), pressedRed, 1e-6);
    EXPECT_EQ(shownRed({0, 2}), 1);
    EXPECT_EQ(peer().selectedRow(), (IndexPath{0, 1}));
    down(middleOf({0, 1}));
    advance(200ms);
    EXPECT_NEAR(shownRed({0, 1}), pressedRed, 1e-6);
}

TEST_F(UITableViewSelectionTest, DeselectionFades) {
    peer().selectRow({0, 1});
    EXPECT_NEAR(shownRed({0, 1}), pressedRed, 0.01);
    peer().deselectRow(true);
    EXPECT_EQ(peer().selectedRow(), std::nullopt);
    EXPECT_NEAR(shownRed({0, 1}), pressedRed, 0.01);
    advance(175ms);
    EXPECT_NEAR(shownRed({0, 1}), (pressedRed + 1) / 2, 0.02);
    advance(176ms);
    EXPECT_EQ(shownRed({0, 1}), 1);
    EXPECT_TRUE(content_.selected.empty());
}

TEST_F(UITableViewSelectionTest, DeselectionAtOnceDoesNotFade) {
    peer().selectRow({0, 1});
    peer().deselectRow(false);
    EXPECT_EQ(shownRed({0, 1}), 1);
}

TEST_F(UITableViewSelectionTest, TheLookOfTheSelectionFadesByParts) {
    peer().selectRow({0, 1});
    peer().fadeSelection(0.25);
    EXPECT_NEAR(shownRed({0, 1}), pressedRed + 0.25 * (1 - pressedRed), 1e-6);
    EXPECT_EQ(peer().selectedRow(), (IndexPath{0, 1}));
    peer().fadeSelection(0);
    EXPECT_NEAR(shownRed({0, 1}), pressedRed, 1e-6);
    peer().fadeSelection(1);
    EXPECT_EQ(shownRed({0, 1}), 1);
    peer().selectRow({0, 1});
    EXPECT_NEAR(shownRed({0, 1}), pressedRed, 1e-6) << "selected anew";
}

TEST_F(UITableViewSelectionTest, FadingWithNothingSelectedChangesNothing) {
    peer().fadeSelection(0);
    EXPECT_EQ(shownRed({0, 1}), 1);
    EXPECT_EQ(peer().selectedRow(), std::nullopt);
}

TEST_F(UITableViewSelectionTest, TheSelectedRowStaysSoWhenItComesBack) {
    peer().selectRow({0, 1});
    peer().setContentOffset({0, 600});
    layOut();
    EXPECT_FALSE(peer().cellForRow({0, 1}));
    peer().setContentOffset({0, 0});
    layOut();
    EXPECT_TRUE(peerOf<UITableViewCellPeer>(cell({0, 1})).isSelected());
    EXPECT_FALSE(peerOf<UITableViewCellPeer>(cell({0, 2})).isSelected());
}

TEST_F(UITableViewSelectionTest, ReloadingForgetsTheSelection) {
    peer().selectRow({0, 1});
    peer().reloadData();
    layOut();
    EXPECT_EQ(peer().selectedRow(), std::nullopt);
    EXPECT_FALSE(peerOf<UITableViewCellPeer>(cell({0, 1})).isSelected());
}
