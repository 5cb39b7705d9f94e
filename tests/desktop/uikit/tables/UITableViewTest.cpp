#include "CALayerPeer.h"
#include "RectGeometry.h"
#include "UIKit/NSLayoutDimension.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "tables/TableFixture.h"
#include "views/UILabelPeer.h"

namespace {

using Edge = TableCaptionViews::Edge;
using Paths = std::vector<IndexPath>;
using UITableViewTest = TableFixture;

class UITableViewPadTest : public TableFixture {
protected:
    UITableViewPadTest() : TableFixture({.idiom = Idiom::Pad, .scale = 2}) {}
};

class UITableViewScaleTest : public TableFixture, public testing::WithParamInterface<double> {
protected:
    UITableViewScaleTest() : TableFixture({.scale = GetParam()}) {}
};

constexpr double pixel = 1.0 / 3;

} // namespace

TEST_P(UITableViewScaleTest, ARowOfOneLineIsAsHighAtEveryScale) {
    content_.sections = {
        {.rows = {{.title = "One line", .height = std::nullopt}}, .header = {}, .footer = {}}};
    show();
    EXPECT_NEAR(cell({0, 0}).frame().size.height, 44, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Scales, UITableViewScaleTest, testing::Values(1, 1.25, 1.5, 2, 3));

TEST_F(UITableViewTest, PlacesRowsInCards) {
    content_.sections = {NotedContent::sectionOf(2), NotedContent::sectionOf(1)};
    show();
    EXPECT_EQ(cell({0, 0}).frame(), CGRectMake(16, 35, 358, 44));
    EXPECT_EQ(cell({0, 1}).frame(), CGRectMake(16, 79, 358, 44));
    EXPECT_NEAR(cell({1, 0}).frame().origin.y, 123 + 35.33, 0.01);
    EXPECT_EQ(titleOf({0, 1}), "1");
}

TEST_F(UITableViewTest, StartsBelowWhatCoversItsTop) {
    content_.sections = {NotedContent::sectionOf(1)};
    show();
    EXPECT_EQ(peer().contentOffset().y, -47);
    EXPECT_EQ(middleOf({0, 0}).y, 47 + 35 + 22);
}

TEST_F(UITableViewPadTest, HasWiderMarginsWhereItIsWide) {
    content_.sections = {NotedContent::sectionOf(1)};
    show();
    EXPECT_EQ(cell({0, 0}).frame(), CGRectMake(20, 35, 780, 44));
    EXPECT_EQ(peerOf<UITableViewCellPeer>(cell({0, 0})).textLabel().frame().origin.x, 20);
}

TEST_F(UITableViewTest, FollowsItsWidth) {
    content_.sections = {NotedContent::sectionOf(1)};
    show();
    table_->setFrame(CGRectMake(0, 0, 600, 400));
    layOut();
    EXPECT_EQ(cell({0, 0}).frame(), CGRectMake(20, 35, 560, 44));
}

TEST_F(UITableViewTest, MakesCellsForRowsNearTheScreenOnly) {
    content_.sections = {NotedContent::sectionOf(1000)};
    show();
    EXPECT_GE(content_.cellsMade, 18U);
    EXPECT_LE(content_.cellsMade, 22U);
    EXPECT_FALSE(peer().cellForRow({0, 500}));
}

TEST_F(UITableViewTest, UsesCellsAgain) {
    content_.sections = {NotedContent::sectionOf(1000)};
    show();
    for (auto offset = 0; offset < 40000; offset += 300) {
        peer().setContentOffset({0, static_cast<double>(offset)});
        layOut();
    }
    EXPECT_LE(content_.cellsMade, 32U);
    const auto first = peer().cells().begin()->first;
    EXPECT_GT(first.row, 890U);
    EXPECT_EQ(titleOf(first), std::to_string(first.row));
}

TEST_F(UITableViewTest, CellsWithoutAnIdentifierAreMadeAnew) {
    content_.reuseIdentifier = "";
    content_.sections = {NotedContent::sectionOf(100)};
    show();
    const auto made = content_.cellsMade;
    peer().setContentOffset({0, 3000});
    layOut();
    EXPECT_GT(content_.cellsMade, 2 * made - 5);
}

TEST_F(UITableViewTest, HiddenRowsShowNothingAndTakeNoRoom) {
    content_.sections = {NotedContent::sectionOf(4)};
    content_.sections[0].rows[0].height = 0;
    content_.sections[0].rows[2].height = 0;
    content_.sections[0].rows[3].height = 0;
    show();
    EXPECT_EQ(cell({0, 1}).frame().origin.y, 35);
    EXPECT_EQ(cell({0, 2}).frame().size.height, 0);
    EXPECT_EQ(peer().rectForFooter(0).origin.y, 79);
    const auto& hidden = cell({0, 2}).peer().subviews().front()->layer().peer();
    EXPECT_TRUE(hidden.masksToBounds);
    EXPECT_EQ(hidden.bounds().size.height, 0);
    const auto& seen = cell({0, 1}).peer().subviews().front()->layer().peer();
    EXPECT_FALSE(seen.masksToBounds);
}

TEST_F(UITableViewTest, OnlyTheEndsOfACardAreRound) {
    content_.sections = {NotedContent::sectionOf(4)};
    content_.sections[0].rows[0].height = 0;
    show();
    const auto background = [this](std::size_t row) -> const CALayerPeer& {
        return cell({0, row}).peer().subviews().front()->peer().subviews().front()->layer().peer();
    };
    EXPECT_EQ(background(1).number(LayerProperty::CornerRadius), 10);
    EXPECT_TRUE(background(1).continuousCorners);
    EXPECT_TRUE(background(1).roundTop);
    EXPECT_FALSE(background(1).roundBottom);
    EXPECT_FALSE(background(2).roundTop);
    EXPECT_FALSE(background(2).roundBottom);
    EXPECT_FALSE(background(3).roundTop);
    EXPECT_TRUE(background(3).roundBottom);
}

TEST_F(UITableViewTest, AutomaticHeightsFollowTheText) {
    content_.sections = {NotedContent::sectionOf(2)};
    content_.sections[0].rows[0] = {.title = "One line", .height = std::nullopt};
    show();
    EXPECT_EQ(cell({0, 0}).frame().size.height, 44);
    EXPECT_EQ(cell({0, 1}).frame().origin.y, 79);
}

TEST_F(UITableViewTest, AutomaticHeightsFollowTheConstraintsInTheCell) {
    const auto inner = make<UIView>();
    const auto makeCell = [&inner](UITableViewCell& cell) {
        auto& content = cell.contentView();
        content.addSubview(inner);
        inner->setTranslatesAutoresizingMaskIntoConstraints(false);
        NSLayoutConstraint::activateConstraints(
            {inner->topAnchor()->constraintEqualToAnchor(content.topAnchor(), 8),
             content.bottomAnchor()->constraintEqualToAnchor(inner->bottomAnchor(), 12),
             inner->heightAnchor()->constraintEqualToConstant(100),
             inner->leadingAnchor()->constraintEqualToAnchor(content.leadingAnchor()),
             inner->trailingAnchor()->constraintEqualToAnchor(content.trailingAnchor())});
    };
    content_.sections = {NotedContent::sectionOf(3)};
    content_.sections[0].rows[1].height = std::nullopt;
    content_.prepare = [&makeCell](IndexPath row, UITableViewCell& cell) {
        if (row == IndexPath{0, 1})
            makeCell(cell);
    };
    content_.reuseIdentifier = "";
    show();
    EXPECT_EQ(cell({0, 1}).frame().size.height, 120);
    EXPECT_EQ(inner->frame(), CGRectMake(0, 8, 358, 100));
    EXPECT_EQ(cell({0, 2}).frame().origin.y, 35 + 44 + 120);
}

TEST_F(UITableViewTest, ConstraintsThatLeaveTheHeightOpenKeepTheLeast) {
    content_.sections = {NotedContent::sectionOf(1)};
    content_.sections[0].rows[0].height = std::nullopt;
    content_.prepare = [](IndexPath /*row*/, UITableViewCell& cell) {
        const auto inner = make<UIView>();
        cell.contentView().addSubview(inner);
        inner->setTranslatesAutoresizingMaskIntoConstraints(false);
        NSLayoutConstraint::activateConstraints(
            {inner->centerYAnchor()->constraintEqualToAnchor(cell.contentView().centerYAnchor()),
             inner->heightAnchor()->constraintEqualToConstant(20)});
    };
    show();
    EXPECT_EQ(cell({0, 0}).frame().size.height, 44);
}

TEST_F(UITableViewTest, HeadersAndFootersStandAtTheTextOfTheRows) {
    content_.sections = {NotedContent::sectionOf(1)};
    content_.sections[0].header.text = "General";
    content_.sections[0].footer.text = "What these rows do.";
    show();
    const auto header = dynamicCast<UILabel>(peer().captionView(0, Edge::Header));
    const auto footer = dynamicCast<UILabel>(peer().captionView(0, Edge::Footer));
    ASSERT_TRUE(header && footer);
    EXPECT_EQ(peerOf<UILabelPeer>(*header).text(), "GENERAL");
    EXPECT_EQ(peerOf<UILabelPeer>(*footer).text(), "What these rows do.");
    EXPECT_EQ(header->frame().origin.x, 32);
    EXPECT_EQ(header->frame().size.width, 326);
    EXPECT_NEAR(CGRectGetMaxY(header->frame()), peer().rectForRow({0, 0}).origin.y - 19 * pixel, 0.01);
    EXPECT_NEAR(footer->frame().origin.y, CGRectGetMaxY(peer().rectForRow({0, 0})) + 22 * pixel, 0.01);
    EXPECT_NEAR(peer().rectForHeader(0).size.height, 55, 0.5);
}

TEST_F(UITableViewTest, FootersWrapAndGrow) {
    content_.sections = {NotedContent::sectionOf(1)};
    content_.sections[0].footer.text = "A word";
    show();
    const auto oneLine = peer().rectForFooter(0).size.height;
    for (auto count = 0; count < 30; ++count)
        content_.sections[0].footer.text += " and another word";
    peer().reloadData();
    layOut();
    const auto lines = (peer().rectForFooter(0).size.height - oneLine) / (47 * pixel);
    EXPECT_GT(lines, 5);
    EXPECT_LT(lines, 20);
    const auto footer = peer().captionView(0, Edge::Footer);
    EXPECT_NEAR(footer->frame().size.height, (lines + 1) * 47 * pixel, 1);
}

TEST_F(UITableViewTest, CaptionViewsAreAsWideAsTheTable) {
    const auto banner = make<UIView>();
    content_.sections = {NotedContent::sectionOf(1)};
    content_.sections[0].header.view = banner;
    content_.sections[0].header.height = 120;
    show();
    EXPECT_EQ(peer().captionView(0, Edge::Header), Ref<UIView>(banner));
    EXPECT_EQ(banner->frame(), CGRectMake(0, 0, 390, 120));
    EXPECT_EQ(cell({0, 0}).frame().origin.y, 120);
}

TEST_F(UITableViewTest, CaptionsFarFromTheScreenAreTakenAway) {
    content_.sections = {NotedContent::sectionOf(100), NotedContent::sectionOf(1)};
    content_.sections[0].header.text = "Top";
    content_.sections[1].header.text = "Bottom";
    show();
    EXPECT_TRUE(peer().captionView(0, Edge::Header));
    EXPECT_FALSE(peer().captionView(1, Edge::Header));
    peer().scrollRowToVisible({1, 0}, false);
    layOut();
    EXPECT_TRUE(peer().captionView(1, Edge::Header));
}

TEST_F(UITableViewTest, AnEmptyTableIsOfNoHeight) {
    show();
    EXPECT_TRUE(peer().cells().empty());
    EXPECT_NEAR(peer().contentSize().height, 17.67, 0.01);
}

TEST_F(UITableViewTest, FindsTheRowUnderAPoint) {
    content_.sections = {NotedContent::sectionOf(2)};
    show();
    EXPECT_EQ(peer().rowAt({100, 80}), (IndexPath{0, 1}));
    EXPECT_EQ(peer().rowAt({10, 80}), std::nullopt);
    EXPECT_EQ(peer().rowAt({100, 10}), std::nullopt);
}

TEST_F(UITableViewTest, ScrollsARowIntoView) {
    content_.sections = {NotedContent::sectionOf(100)};
    show();
    peer().scrollRowToVisible({0, 50}, false);
    layOut();
    const auto middle = middleOf({0, 50});
    EXPECT_GT(middle.y, 47);
    EXPECT_LT(middle.y, 844 - 34);
    EXPECT_TRUE(peer().cellForRow({0, 50}));
    const auto offset = peer().contentOffset();
    peer().scrollRowToVisible({0, 50}, false);
    peer().scrollRowToVisible({0, 100}, false);
    EXPECT_EQ(peer().contentOffset(), offset);
}

TEST_F(UITableViewTest, ShowsNothingOnceTheContentIsGone) {
    content_.sections = {NotedContent::sectionOf(3)};
    show();
    peer().setContent(nullptr);
    layOut();
    EXPECT_TRUE(peer().cells().empty());
    tap({200, 120});
    EXPECT_TRUE(content_.selected.empty());
}
