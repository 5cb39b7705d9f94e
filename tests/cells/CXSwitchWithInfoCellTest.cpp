#include "CXSwitchWithInfoCell.h"

#include "CellFixture.h"
#include "RectGeometry.h"
#include "UIKit/UIAlertController.h"
#include "accessibility/AccessibilityElement.h"
#include "alerts/UIAlertControllerPeer.h"
#include "cells/PSControlTableCellPeer.h"
#include "views/UILabelPeer.h"

#include <algorithm>

namespace {

constexpr auto messageInstead = "No information provided for this cell.";
constexpr auto mainTables = "/Applications/Preferences.app/en.lproj/";

class CXSwitchWithInfoCellTest : public CellFixture {
protected:
    CXSwitchWithInfoCellTest() : CellFixture("CXSwitchWithInfoCell") {}

    /// The only row of the page, shown.
    Ref<CXSwitchWithInfoCell> shown(Properties properties) {
        properties.insert_or_assign("cell", "PSSwitchCell");
        return dynamicCast<CXSwitchWithInfoCell>(showRow(properties));
    }

    /// What the tap on the info button of a row with those properties presents.
    Ref<UIAlertController> alertOf(const Properties& properties) {
        const auto cell = shown(properties);
        tap(*cell->infoButton());
        settle();
        return dynamicCast<UIAlertController>(page->presentedViewController());
    }

    [[nodiscard]] static const UIAlertControllerPeer& contentOf(const Ref<UIAlertController>& alert) {
        return peerOf<UIAlertControllerPeer>(*alert);
    }
};

} // namespace

TEST_F(CXSwitchWithInfoCellTest, TheButtonIsAtTheRightEdgeOfTheContent) {
    const auto cell = shown({{"label", "Row"}});
    const auto& content = cell->contentView();
    const auto frame = cell->infoButton()->frame();
    EXPECT_EQ(cell->infoButton()->superview().get(), &content);
    EXPECT_EQ(CGRectGetMaxX(frame), content.bounds().size.width - 4);
    EXPECT_NEAR(CGRectGetMidY(frame), content.bounds().size.height / 2, 0.5);
    EXPECT_EQ(frame.size.height, *cell->infoButton()->peer().intrinsicHeight());
    EXPECT_EQ(cell->frame().size.height, 44);
}

TEST_F(CXSwitchWithInfoCellTest, ItIsASwitchRowLikeAnyOther) {
    const auto cell = shown({{"label", "Row"}});
    const auto& control = peerOf<PSControlTableCellPeer>(*cell).control();
    ASSERT_TRUE(control);
    EXPECT_GT(screenFrame(*control).origin.x, CGRectGetMaxX(screenFrame(*cell->infoButton())));
}

TEST_F(CXSwitchWithInfoCellTest, ATapShowsTheTextsWithOneButton) {
    const auto alert = alertOf({{"label", "Label"}, {"infoTitle", "Title"}, {"infoMessage", "Message"}});
    ASSERT_TRUE(alert);
    EXPECT_EQ(contentOf(alert).title(), "Title");
    EXPECT_EQ(contentOf(alert).message(), "Message");
    const auto actions = screen.presentations().top()->actions();
    ASSERT_EQ(actions.size(), 1U);
    EXPECT_EQ(actions.front().title, "Cancel");
    EXPECT_TRUE(actions.front().cancels);
}

TEST_F(CXSwitchWithInfoCellTest, WithoutATitleOfItsOwnTheAlertHasTheRowsLabel) {
    const auto alert = alertOf({{"label", "Label"}});
    EXPECT_EQ(contentOf(alert).title(), "Label");
    EXPECT_EQ(contentOf(alert).message(), messageInstead);
}

TEST_F(CXSwitchWithInfoCellTest, WithNeitherTheAlertHasNoTitle) {
    EXPECT_EQ(contentOf(alertOf({})).title(), "");
}

TEST_F(CXSwitchWithInfoCellTest, ATitleThatIsEmptyIsATitle) {
    EXPECT_EQ(contentOf(alertOf({{"label", "Label"}, {"infoTitle", ""}})).title(), "");
}

TEST_F(CXSwitchWithInfoCellTest, WrittenLineBreaksAreLineBreaks) {
    const auto alert = alertOf({{"infoMessage", R"(\nOne.\nTwo.\\nThree\ n)"}});
    EXPECT_EQ(contentOf(alert).message(), "\nOne.\nTwo.\\\nThree\\ n");
}

TEST_F(CXSwitchWithInfoCellTest, TheMessageIsLocalisedByItsTableAndTheTitleIsNot) {
    device.write(mainTables + std::string("Info.strings"), R"("key" = "One\\nTwo"; "title" = "not shown";)");
    const auto alert =
        alertOf({{"infoTitle", "title"}, {"infoMessage", "key"}, {"localizationTable", "Info"}});
    EXPECT_EQ(contentOf(alert).title(), "title");
    EXPECT_EQ(contentOf(alert).message(), "One\nTwo");
}

TEST_F(CXSwitchWithInfoCellTest, WithoutATableItIsTheMainBundlesDefault) {
    device.write(mainTables + std::string("Localizable.strings"), R"("key" = "Text";)");
    EXPECT_EQ(contentOf(alertOf({{"infoMessage", "key"}})).message(), "Text");
}

TEST_F(CXSwitchWithInfoCellTest, TheMessageInsteadIsLocalisedToo) {
    device.write(mainTables + std::string("Info.strings"),
                 "\"" + std::string(messageInstead) + "\" = \"Nothing.\";");
    EXPECT_EQ(contentOf(alertOf({{"localizationTable", "Info"}})).message(), "Nothing.");
}

TEST_F(CXSwitchWithInfoCellTest, AMissingTableLeavesTheMessageAsItIs) {
    EXPECT_EQ(contentOf(alertOf({{"infoMessage", "key"}, {"localizationTable", "Nowhere"}})).message(),
              "key");
}

TEST_F(CXSwitchWithInfoCellTest, TheTextsAreReadWhenTheButtonIsTapped) {
    const auto cell = shown({{"label", "Before"}});
    const auto other = row({{"label", "After"}});
    cell->refreshCellContentsWithSpecifier(*other);
    tap(*cell->infoButton());
    settle();
    EXPECT_EQ(contentOf(dynamicCast<UIAlertController>(page->presentedViewController())).title(), "After");
}

TEST_F(CXSwitchWithInfoCellTest, OutsideAPageTheWindowsControllerPresents) {
    navigation->pushViewController(page, false);
    show(navigation);
    const auto cell = dynamicCast<CXSwitchWithInfoCell>(cellFor({{"label", "Row"}}));
    EXPECT_FALSE(cell->_viewControllerForAncestor());
    cell->infoButtonTapped();
    EXPECT_TRUE(dynamicCast<UIAlertController>(navigation->presentedViewController()));
}

TEST_F(CXSwitchWithInfoCellTest, WithoutAnyControllerNothingHappens) {
    const auto cell = dynamicCast<CXSwitchWithInfoCell>(cellFor({{"label", "Row"}}));
    cell->infoButtonTapped();
    EXPECT_TRUE(device.log().take().empty());
}

TEST_F(CXSwitchWithInfoCellTest, TheButtonFollowsThePagesTint) {
    const auto cell = shown({{"label", "Row"}});
    page->view().setTintColor(UIColor::systemRedColor());
    EXPECT_EQ(cell->infoButton()->peer().ownTintColor(), page->view().tintColor());
    page->view().setTintColor(UIColor::yellowColor());
    EXPECT_EQ(cell->infoButton()->peer().ownTintColor(), page->view().tintColor());
}

TEST_F(CXSwitchWithInfoCellTest, ARefreshGivesTheButtonTheTint) {
    const auto cell = shown({{"label", "Row"}});
    page->view().setTintColor(UIColor::yellowColor());
    cell->infoButton()->setTintColor(UIColor::systemRedColor());
    cell->refreshCellContentsWithSpecifier(*cell->specifier());
    EXPECT_EQ(cell->infoButton()->peer().ownTintColor(), page->view().tintColor());
}

TEST_F(CXSwitchWithInfoCellTest, TheRowHasTheButtonAndTheSwitchForEveryone) {
    const auto cell = shown({{"label", "Row"}});
    const auto elements = AccessibilityElement::allIn(*cell);
    const auto count = [&](AccessibilityRole role, const std::string& label) {
        return std::ranges::count_if(elements, [&](const AccessibilityElement& element) {
            return element.role == role && element.label == label;
        });
    };
    EXPECT_EQ(count(AccessibilityRole::Button, "More Info"), 1);
    EXPECT_EQ(count(AccessibilityRole::Switch, "Row"), 1);
}
