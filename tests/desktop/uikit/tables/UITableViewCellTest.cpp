#include "CALayerPeer.h"
#include "DesktopImage.h"
#include "RectGeometry.h"
#include "TestDevice.h"
#include "screen/Screen.h"
#include "tables/UITableViewCellPeer.h"
#include "views/UILabelPeer.h"

#include <gtest/gtest.h>

namespace {

/// A cell as wide as a phone's card.
class UITableViewCellTest : public testing::Test {
protected:
    static Ref<UITableViewCell> cellOf(UITableViewCellStyle style) {
        auto cell = adopt(new UITableViewCell);
        EXPECT_TRUE(cell->initWithStyle(style, "Cell"));
        cell->setFrame(CGRectMake(0, 0, 358, 44));
        return cell;
    }

    static void layOut(UITableViewCell& cell) { cell.peer().layoutIfNeeded(); }

    TestDevice device;
};

const std::string longText = "A text that is so long that it has no room in the width of one card of a phone";

} // namespace

TEST_F(UITableViewCellTest, TheTitleKeepsAwayFromTheEdges) {
    const auto cell = cellOf(UITableViewCellStyle::Default);
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText("Title");
    layOut(*cell);
    EXPECT_EQ(peerOf<UITableViewCellPeer>(*cell).textLabel().frame(), CGRectMake(16, 0, 326, 44));
    EXPECT_EQ(cell->contentView().frame(), CGRectMake(0, 0, 358, 44));
    EXPECT_EQ(peerOf<UITableViewCellPeer>(*cell).reuseIdentifier(), "Cell");
}

TEST_F(UITableViewCellTest, TheDetailStandsAtTheRightEdge) {
    const auto cell = cellOf(UITableViewCellStyle::Value1);
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText("Title");
    peerOf<UITableViewCellPeer>(*cell).detailTextLabel().setText("Detail");
    layOut(*cell);
    EXPECT_NEAR(CGRectGetMaxX(peerOf<UITableViewCellPeer>(*cell).detailTextLabel().frame()), 342, 0.01);
    EXPECT_FALSE(peerOf<UILabelPeer>(peerOf<UITableViewCellPeer>(*cell).detailTextLabel()).isTruncated());
    EXPECT_FALSE(peerOf<UILabelPeer>(peerOf<UITableViewCellPeer>(*cell).textLabel()).isTruncated());
}

TEST_F(UITableViewCellTest, TheTitleHasPriorityUnlessToldOtherwise) {
    const auto cell = cellOf(UITableViewCellStyle::Value1);
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText("A title of some width");
    peerOf<UITableViewCellPeer>(*cell).detailTextLabel().setText(longText);
    layOut(*cell);
    const auto& title = peerOf<UILabelPeer>(peerOf<UITableViewCellPeer>(*cell).textLabel());
    const auto& detail = peerOf<UILabelPeer>(peerOf<UITableViewCellPeer>(*cell).detailTextLabel());
    EXPECT_FALSE(title.isTruncated());
    EXPECT_TRUE(detail.isTruncated());
    EXPECT_LE(CGRectGetMaxX(peerOf<UITableViewCellPeer>(*cell).textLabel().frame()) + 6,
              peerOf<UITableViewCellPeer>(*cell).detailTextLabel().frame().origin.x + 0.01);

    peerOf<UITableViewCellPeer>(*cell).detailTextLabel().setText("A detail of some width");
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText(longText);
    peerOf<UITableViewCellPeer>(*cell).setDetailHasPriority(true);
    layOut(*cell);
    EXPECT_TRUE(title.isTruncated());
    EXPECT_FALSE(detail.isTruncated());
}

TEST_F(UITableViewCellTest, ADetailThatATitleLeavesNoRoomForIsNotSeen) {
    const auto cell = cellOf(UITableViewCellStyle::Value1);
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText(longText);
    peerOf<UITableViewCellPeer>(*cell).detailTextLabel().setText("Detail");
    layOut(*cell);
    EXPECT_EQ(peerOf<UITableViewCellPeer>(*cell).detailTextLabel().frame().size.width, 0);
    EXPECT_NEAR(CGRectGetMaxX(peerOf<UITableViewCellPeer>(*cell).textLabel().frame()), 342, 0.01);
}

TEST_F(UITableViewCellTest, AShortDetailStaysBesideATitleThatLeavesItRoom) {
    const auto cell = cellOf(UITableViewCellStyle::Value1);
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText("Title");
    peerOf<UITableViewCellPeer>(*cell).detailTextLabel().setText("1");
    layOut(*cell);
    EXPECT_GT(peerOf<UITableViewCellPeer>(*cell).detailTextLabel().frame().size.width, 0);
    EXPECT_FALSE(peerOf<UILabelPeer>(peerOf<UITableViewCellPeer>(*cell).detailTextLabel()).isTruncated());
}

TEST_F(UITableViewCellTest, ASubtitleMakesTheRowHigher) {
    const auto cell = cellOf(UITableViewCellStyle::Subtitle);
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText("Title");
    EXPECT_EQ(peerOf<UITableViewCellPeer>(*cell).heightFor(358), 44);
    peerOf<UITableViewCellPeer>(*cell).detailTextLabel().setText("Subtitle");
    EXPECT_NEAR(peerOf<UITableViewCellPeer>(*cell).heightFor(358), 59.33, 0.4);
    cell->setFrame(CGRectMake(0, 0, 358, 60));
    layOut(*cell);
    EXPECT_GE(peerOf<UITableViewCellPeer>(*cell).detailTextLabel().frame().origin.y,
              CGRectGetMaxY(peerOf<UITableViewCellPeer>(*cell).textLabel().frame()));
}

TEST_F(UITableViewCellTest, WrappedTextsMakeTheRowHigher) {
    const auto cell = cellOf(UITableViewCellStyle::Default);
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText(longText);
    EXPECT_EQ(peerOf<UITableViewCellPeer>(*cell).heightFor(358), 44);
    peerOf<UILabelPeer>(peerOf<UITableViewCellPeer>(*cell).textLabel()).setNumberOfLines(0);
    EXPECT_NEAR(peerOf<UITableViewCellPeer>(*cell).heightFor(358), 2 * 20.33 + 23.33, 0.7);
    EXPECT_GT(peerOf<UITableViewCellPeer>(*cell).heightFor(150),
              peerOf<UITableViewCellPeer>(*cell).heightFor(358));
}

TEST_F(UITableViewCellTest, TheChevronStandsBeforeTheEdge) {
    const auto cell = cellOf(UITableViewCellStyle::Value1);
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText("Title");
    peerOf<UITableViewCellPeer>(*cell).detailTextLabel().setText("Detail");
    peerOf<UITableViewCellPeer>(*cell).setAccessoryType(UITableViewCellAccessoryType::DisclosureIndicator);
    layOut(*cell);
    const auto chevron = cell->peer().subviews().front()->peer().subviews().back()->frame();
    EXPECT_NEAR(CGRectGetMaxX(chevron), 342, 0.01);
    EXPECT_NEAR(CGRectGetMidY(chevron), 22, 0.4);
    EXPECT_NEAR(chevron.origin.x -
                    CGRectGetMaxX(peerOf<UITableViewCellPeer>(*cell).detailTextLabel().frame()),
                8, 0.01);
    EXPECT_EQ(cell->contentView().frame().size.width, chevron.origin.x);
    peerOf<UITableViewCellPeer>(*cell).setAccessoryType(UITableViewCellAccessoryType::None);
    layOut(*cell);
    EXPECT_NEAR(CGRectGetMaxX(peerOf<UITableViewCellPeer>(*cell).detailTextLabel().frame()), 342, 0.01);
}

TEST_F(UITableViewCellTest, AnAccessoryViewKeepsItsSize) {
    const auto cell = cellOf(UITableViewCellStyle::Default);
    const auto view = makeWith<UIView>(&UIView::initWithFrame, CGRectMake(0, 0, 51, 31));
    peerOf<UITableViewCellPeer>(*cell).setAccessoryType(UITableViewCellAccessoryType::DisclosureIndicator);
    peerOf<UITableViewCellPeer>(*cell).setAccessoryView(view);
    layOut(*cell);
    EXPECT_NEAR(view->frame().origin.x, 291, 0.01);
    EXPECT_NEAR(view->frame().origin.y, 6.5, 0.2);
    EXPECT_EQ(view->frame().size, (CGSize{51, 31}));
    peerOf<UITableViewCellPeer>(*cell).setAccessoryView(nullptr);
    EXPECT_EQ(view->peer().superview(), nullptr);
}

TEST_F(UITableViewCellTest, TextAndSeparatorMakeRoomForTheImage) {
    const auto cell = cellOf(UITableViewCellStyle::Default);
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText("Title");
    peerOf<UITableViewCellPeer>(*cell).imageView().setImage(
        make<DesktopImage>(QImage(87, 87, QImage::Format_ARGB32_Premultiplied), 3));
    layOut(*cell);
    const auto image = peerOf<UITableViewCellPeer>(*cell).imageView().frame();
    EXPECT_EQ(image.origin.x, 16);
    EXPECT_NEAR(image.origin.y, 23.0 / 3, 1e-9) << "and not within a pixel";
    EXPECT_EQ(image.size, (CGSize{29, 29}));
    EXPECT_EQ(peerOf<UITableViewCellPeer>(*cell).textLabel().frame().origin.x, 61);
    const auto separator = cell->peer().subviews().front()->peer().subviews()[2]->frame();
    EXPECT_NEAR(separator.origin.x, 61, 0.01);
    EXPECT_NEAR(separator.size.width, 358 - 61, 0.01);
    EXPECT_NEAR(separator.size.height, 1.0 / 3, 0.01);
    EXPECT_NEAR(CGRectGetMaxY(separator), 44, 0.01);
}

TEST_F(UITableViewCellTest, LargeImagesAreShownSmaller) {
    const auto cell = cellOf(UITableViewCellStyle::Default);
    peerOf<UITableViewCellPeer>(*cell).imageView().setImage(
        make<DesktopImage>(QImage(120, 60, QImage::Format_ARGB32_Premultiplied), 1));
    layOut(*cell);
    EXPECT_EQ(peerOf<UITableViewCellPeer>(*cell).imageView().frame(), CGRectMake(16, 15, 29, 14.5));
}

TEST_F(UITableViewCellTest, ImagesStandInTheMiddleOfTheirColumn) {
    const auto cell = cellOf(UITableViewCellStyle::Default);
    peerOf<UITableViewCellPeer>(*cell).textLabel().setText("Title");
    peerOf<UITableViewCellPeer>(*cell).imageView().setImage(
        make<DesktopImage>(QImage(20, 20, QImage::Format_ARGB32_Premultiplied), 1));
    peerOf<UITableViewCellPeer>(*cell).setImageColumn(29);
    layOut(*cell);
    EXPECT_NEAR(peerOf<UITableViewCellPeer>(*cell).imageView().frame().origin.x, 62.0 / 3, 1e-9);
    EXPECT_EQ(peerOf<UITableViewCellPeer>(*cell).imageView().frame().origin.y, 12);
    EXPECT_EQ(peerOf<UITableViewCellPeer>(*cell).textLabel().frame().origin.x, 61);
}

TEST_F(UITableViewCellTest, APressedRowHasNoSeparator) {
    const auto cell = cellOf(UITableViewCellStyle::Default);
    const auto& separator = cell->peer().subviews().front()->peer().subviews()[2]->peer();
    peerOf<UITableViewCellPeer>(*cell).setPlaceInCard(false, false);
    peerOf<UITableViewCellPeer>(*cell).setHighlighted(true);
    EXPECT_TRUE(separator.isHidden());
    peerOf<UITableViewCellPeer>(*cell).setHighlighted(false);
    EXPECT_FALSE(separator.isHidden());
    peerOf<UITableViewCellPeer>(*cell).setSelected(true, false);
    EXPECT_TRUE(separator.isHidden());
}

TEST_F(UITableViewCellTest, TheSeparatorComesBackAsTheSelectionFades) {
    const auto cell = cellOf(UITableViewCellStyle::Default);
    const auto& separator = *cell->peer().subviews().front()->peer().subviews()[2];
    peerOf<UITableViewCellPeer>(*cell).setPlaceInCard(false, false);
    peerOf<UITableViewCellPeer>(*cell).setSelected(true, false);
    peerOf<UITableViewCellPeer>(*cell).setSelectionFade(0.25);
    EXPECT_FALSE(separator.peer().isHidden());
    EXPECT_EQ(separator.layer().peer().number(LayerProperty::Opacity), 0.25);
    peerOf<UITableViewCellPeer>(*cell).setSelected(false, false);
    EXPECT_EQ(separator.layer().peer().number(LayerProperty::Opacity), 1);
}

TEST_F(UITableViewCellTest, TheLastRowOfACardHasNoSeparator) {
    const auto cell = cellOf(UITableViewCellStyle::Default);
    const auto& separator = cell->peer().subviews().front()->peer().subviews()[2]->peer();
    peerOf<UITableViewCellPeer>(*cell).setPlaceInCard(true, false);
    EXPECT_FALSE(separator.isHidden());
    peerOf<UITableViewCellPeer>(*cell).setPlaceInCard(false, true);
    EXPECT_TRUE(separator.isHidden());
}
