#include "tables/TableFixture.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace std::chrono_literals;

class UITableViewUpdatesTest : public TableFixture {
protected:
    UITableViewUpdatesTest() {
        content_.sections = {NotedContent::sectionOf(4), NotedContent::sectionOf(2)};
        show();
    }

    void askHeightsAgain() {
        table_->beginUpdates();
        table_->endUpdates();
    }

    [[nodiscard]] bool isRoundBelow(IndexPath row) const {
        const auto& slice = cell(row).peer().subviews().front();
        return slice->peer().subviews().front()->layer().peer().roundBottom;
    }

    [[nodiscard]] std::vector<std::string> titles(std::size_t section) const {
        std::vector<std::string> found(content_.sections[section].rows.size());
        for (std::size_t row = 0; row < found.size(); ++row)
            found[row] = titleOf({section, row});
        return found;
    }
};

using Titles = std::vector<std::string>;

} // namespace

TEST_F(UITableViewUpdatesTest, AskingHeightsAgainSlidesTheRows) {
    content_.sections[0].rows[1].height = 0;
    const auto made = content_.cellsMade;
    askHeightsAgain();
    EXPECT_EQ(cell({0, 2}).frame().origin.y, 79);
    EXPECT_EQ(shownFrame({0, 2}).origin.y, 123);
    advance(150ms);
    EXPECT_NEAR(shownFrame({0, 2}).origin.y, 101, 0.5);
    EXPECT_NEAR(shownFrame({0, 1}).size.height, 22, 0.5);
    advance(151ms);
    EXPECT_EQ(shownFrame({0, 2}).origin.y, 79);
    EXPECT_EQ(content_.cellsMade, made);
}

TEST_F(UITableViewUpdatesTest, ASlideStartsAndEndsSlowly) {
    content_.sections[0].rows[1].height = 0;
    askHeightsAgain();
    advance(30ms);
    EXPECT_GT(shownFrame({0, 2}).origin.y, 123 - 4.4);
    EXPECT_LT(shownFrame({0, 2}).origin.y, 123);
    advance(240ms);
    EXPECT_LT(shownFrame({0, 2}).origin.y, 79 + 4.4);
    EXPECT_GT(shownFrame({0, 2}).origin.y, 79);
}

TEST_F(UITableViewUpdatesTest, ASlideThatIsTurnedRoundGoesOnFromWhereItIs) {
    content_.sections[0].rows[1].height = 0;
    askHeightsAgain();
    advance(120ms);
    const auto on = shownFrame({0, 2}).origin.y;
    const auto height = shownFrame({0, 1}).size.height;
    content_.sections[0].rows[1].height = 44;
    askHeightsAgain();
    EXPECT_NEAR(shownFrame({0, 2}).origin.y, on, 1e-6);
    EXPECT_NEAR(shownFrame({0, 1}).size.height, height, 1e-6);
    auto last = on;
    auto farthest = 0.0; // of a frame's step
    for (auto frame = 0; frame < 20; ++frame) {
        advance(16ms);
        farthest = std::max(farthest, std::abs(shownFrame({0, 2}).origin.y - last));
        last = shownFrame({0, 2}).origin.y;
    }
    EXPECT_LT(farthest, 6);
    EXPECT_EQ(last, 123);
    EXPECT_FALSE(cell({0, 1}).peer().isHidden());
}

TEST_F(UITableViewUpdatesTest, TheCardKeepsItsEndUntilItsLastRowHasGone) {
    content_.sections[0].rows[3].height = 0;
    askHeightsAgain();
    advance(150ms);
    layOut();
    EXPECT_FALSE(isRoundBelow({0, 2}));
    EXPECT_TRUE(isRoundBelow({0, 3}));
    content_.sections[0].rows[2].height = 0; // while the other one is on its way
    askHeightsAgain();
    EXPECT_FALSE(isRoundBelow({0, 1}));
    EXPECT_FALSE(isRoundBelow({0, 2}));
    advance(1s);
    layOut();
    EXPECT_TRUE(isRoundBelow({0, 1}));
    content_.sections[0].rows[3].height = 44;
    askHeightsAgain();
    EXPECT_FALSE(isRoundBelow({0, 1}));
    EXPECT_TRUE(isRoundBelow({0, 3}));
}

TEST_F(UITableViewUpdatesTest, ARowIsHiddenOnlyOnceItHasGone) {
    content_.sections[0].rows[1].height = 0;
    askHeightsAgain();
    EXPECT_FALSE(cell({0, 1}).peer().isHidden());
    advance(290ms);
    layOut();
    EXPECT_FALSE(cell({0, 1}).peer().isHidden());
    advance(20ms);
    layOut();
    EXPECT_TRUE(cell({0, 1}).peer().isHidden());
    content_.sections[0].rows[1].height = 44;
    askHeightsAgain();
    EXPECT_FALSE(cell({0, 1}).peer().isHidden());
}

TEST_F(UITableViewUpdatesTest, ARowThatComesBackIsCutOffUntilItIsThere) {
    content_.sections[0].rows[1].height = 0;
    askHeightsAgain();
    advance(400ms);
    content_.sections[0].rows[1].height = 44;
    askHeightsAgain();
    const auto& slice = cell({0, 1}).peer().subviews().front()->layer().peer();
    EXPECT_TRUE(slice.masksToBounds);
    advance(400ms);
    EXPECT_FALSE(slice.masksToBounds);
    EXPECT_EQ(cell({0, 1}).frame(), CGRectMake(16, 79, 358, 44));
}

TEST_F(UITableViewUpdatesTest, UpdatesNest) {
    const auto asked = content_.heightsAsked;
    peer().beginUpdates();
    peer().beginUpdates();
    content_.sections[0].rows[0].height = 60;
    peer().endUpdates();
    EXPECT_EQ(content_.heightsAsked, asked);
    peer().endUpdates();
    EXPECT_EQ(content_.heightsAsked, asked + 6);
    peer().endUpdates();
    EXPECT_EQ(content_.heightsAsked, asked + 6);
}

TEST_F(UITableViewUpdatesTest, RowsThatDoNotAgreeAreShownAnewWithALogLine) {
    content_.sections[0].rows.pop_back();
    static_cast<void>(device.log().take());
    askHeightsAgain();
    EXPECT_EQ(device.log().take().size(), 1U);
    layOut();
    EXPECT_EQ(titles(0), (Titles{"0", "1", "2"}));
}

TEST_F(UITableViewUpdatesTest, ReloadingEndsASlide) {
    content_.sections[0].rows[1].height = 0;
    askHeightsAgain();
    content_.sections[0].rows.pop_back();
    content_.sections[0].rows[1].height = 44;
    peer().reloadData();
    layOut();
    EXPECT_TRUE(isRoundBelow({0, 2}));
    advance(1s);
    EXPECT_EQ(titles(0), (Titles{"0", "1", "2"}));
    EXPECT_EQ(peer().cells().size(), 5U);
}

TEST_F(UITableViewUpdatesTest, RowsThatSlideIntoViewComeFromBelow) {
    content_.sections = {NotedContent::sectionOf(40)};
    peer().reloadData();
    layOut();
    const auto far = IndexPath{0, 25};
    ASSERT_FALSE(peer().cellForRow(far));
    const auto before = peer().rectForRow(far).origin.y;
    for (std::size_t row = 0; row < 10; ++row)
        content_.sections[0].rows[row].height = 0;
    askHeightsAgain();
    ASSERT_TRUE(peer().cellForRow(far));
    EXPECT_EQ(shownFrame(far).origin.y, before);
    advance(301ms);
    EXPECT_EQ(shownFrame(far).origin.y, before - 440);
}

TEST_F(UITableViewUpdatesTest, AContentThatEndsEarlierIsPulledDown) {
    content_.sections = {NotedContent::sectionOf(40)};
    peer().reloadData();
    layOut();
    peer().scrollRowToVisible({0, 39}, false);
    layOut();
    for (std::size_t row = 5; row < 40; ++row)
        content_.sections[0].rows[row].height = 0;
    askHeightsAgain();
    advance(1s);
    layOut();
    EXPECT_EQ(peer().contentOffset().y, -47);
    EXPECT_EQ(titleOf({0, 4}), "4");
}

TEST_F(UITableViewUpdatesTest, ATableThatEndsWhileItSlidesIsLeftAlone) {
    content_.sections[0].rows[1].height = 0;
    askHeightsAgain();
    peer().setContent(nullptr);
    table_->peer().removeFromSuperview();
    table_ = make<UITableView>();
    advance(1s);
    EXPECT_TRUE(peer().cells().empty());
}
