#include "PSListItemsController.h"

#include "RectGeometry.h"
#include "cells/RowsFixture.h"
#include "navigation/UINavigationControllerPeer.h"
#include "system/DarwinNotifications.h"
#include "views/UILabelPeer.h"

namespace {

using Texts = std::vector<std::string>;
using Accessory = UITableViewCellAccessoryType;

class PSListItemsControllerTest : public RowsFixture {
protected:
    [[nodiscard]] static std::string choices() {
        return list("validValues", "<integer>0</integer><integer>1</integer><integer>2</integer>") +
               texts("validTitles", {"None", "A little", "Much"}) + text("detail", "PSListItemsController");
    }

    /// The list that a tap on the row opens.
    PSListControllerPeer& open(const std::string& id) {
        tap(id);
        settle();
        return items();
    }

    [[nodiscard]] PSListControllerPeer& items() const {
        const auto top = peerOf<UINavigationControllerPeer>(*navigation_).top();
        return peerOf<PSListControllerPeer>(dynamic_cast<PSListController&>(*top));
    }

    void tapItem(std::size_t index) {
        const auto frame = items().table().view().peer().convertToScreen(items().rows()[index].frame);
        Phone::tap({CGRectGetMidX(frame), CGRectGetMidY(frame)});
        settle();
    }

    /// The labels of the rows that have a check mark.
    [[nodiscard]] Texts checked() const {
        Texts labels;
        for (const auto& row : items().rows()) {
            const auto cell = dynamicCast<UITableViewCell>(row.view);
            if (cell && peerOf<UITableViewCellPeer>(*cell).accessoryType() == Accessory::Checkmark)
                labels.push_back(row.label);
        }
        return labels;
    }

    [[nodiscard]] std::optional<std::string> shownValue(const std::string& id) const {
        return peerOf<UILabelPeer>(cellPeer(id).detailTextLabel()).text();
    }
};

} // namespace

TEST_F(PSListItemsControllerTest, ARowShowsTheTitleOfItsValue) {
    writeList({keptRow("PSLinkListCell", "a", choices() + value("default", "<integer>1</integer>")),
               keptRow("PSLinkListCell", "b",
                       choices() + value("default", "<integer>2</integer>") +
                           texts("shortTitles", {"0", "1", "2!"})),
               keptRow("PSLinkListCell", "c", choices() + text("default", "other"))});
    show();
    EXPECT_EQ(shownValue("a"), "A little");
    EXPECT_EQ(shownValue("b"), "2!");
    EXPECT_EQ(shownValue("c"), "other");
    EXPECT_EQ(cellPeer("a").accessoryType(), Accessory::DisclosureIndicator);
}

TEST_F(PSListItemsControllerTest, ListsTheTitlesAndChecksTheValue) {
    writeList(
        {keptRow("PSLinkListCell", "a",
                 choices() + value("default", "<integer>1</integer>") + text("staticTextMessage", "Below"))});
    show();
    auto& page = open("a");
    EXPECT_EQ(page.title(), "Row a");
    ASSERT_EQ(page.rows().size(), 4U);
    EXPECT_EQ(page.rows()[1].label, "None");
    EXPECT_EQ(page.rows()[1].cell, "PSListItemCell");
    EXPECT_EQ(page.rows()[2].value, PropertyList(true));
    EXPECT_EQ(checked(), Texts{"A little"});
    const auto footer = dynamicCast<UILabel>(page.table().captionView(0, TableCaptionViews::Edge::Footer));
    ASSERT_TRUE(footer);
    EXPECT_EQ(peerOf<UILabelPeer>(*footer).text(), "Below");
}

TEST_F(PSListItemsControllerTest, ATapWritesThroughTheRowsPageAndStays) {
    writeList({keptRow("PSLinkListCell", "a", choices() + text("PostNotification", "com.example.changed"))});
    show();
    open("a");
    EXPECT_TRUE(checked().empty());
    tapItem(3);
    EXPECT_EQ(written("a"), PropertyList(2));
    EXPECT_EQ(Device::current().notifications().take(), Texts{"com.example.changed"});
    EXPECT_EQ(checked(), Texts{"Much"});
    EXPECT_EQ(items().table().selectedRow(), std::nullopt);
    peerOf<UINavigationControllerPeer>(*navigation_).pop(true);
    settle();
    EXPECT_EQ(shownValue("a"), "Much");
}

TEST_F(PSListItemsControllerTest, WritesByTheRowsOwnMessage) {
    writeList({row("PSLinkListCell", "a", choices() + text("set", "setOwnValue:specifier:"))});
    show();
    open("a");
    tapItem(1);
    EXPECT_EQ(page_->events, Texts{"set a to 0"});
}

TEST_F(PSListItemsControllerTest, TheChoicesMayComeFromThePage) {
    writeList(
        {keptRow("PSLinkListCell", "a",
                 text("valuesDataSource", "choiceValues:") + text("titlesDataSource", "choiceTitles:"))});
    show();
    open("a");
    ASSERT_EQ(items().rows().size(), 3U);
    EXPECT_EQ(items().rows()[2].label, "Second of a");
    tapItem(2);
    EXPECT_EQ(written("a"), PropertyList("two"));
}

TEST_F(PSListItemsControllerTest, ScriptsChooseAsWell) {
    writeList({keptRow("PSLinkListCell", "a", choices())});
    show();
    open("a");
    auto& page = dynamic_cast<PSListController&>(items().controller());
    items().setValue(dynamic_cast<DesktopSpecifier&>(*page.specifierForID("A little")), true);
    EXPECT_EQ(written("a"), PropertyList(1));
    EXPECT_EQ(checked(), Texts{"A little"});
}

TEST_F(PSListItemsControllerTest, AListWithoutChoicesIsEmpty) {
    writeList({keptRow("PSLinkListCell", "a", text("validValues", "x") + texts("validTitles", {"A"}))});
    show();
    open("a");
    EXPECT_EQ(items().rows().size(), 1U);
}

TEST_F(PSListItemsControllerTest, ARadioGroupKeepsItsValue) {
    const auto group = text("cell", "PSGroupCell") + text("id", "g") + text("key", "g") +
                       text("defaults", domain) + text("default", "x") + yes("isRadioGroup");
    writeList({group, row("PSListItemCell", "1", text("value", "x")),
               row("PSListItemCell", "2", text("value", "y") + text("action", "tapped:"))});
    show();
    EXPECT_EQ(checked(), Texts{"Row 1"});
    tap("2");
    EXPECT_EQ(written("g"), PropertyList("y"));
    EXPECT_EQ(checked(), Texts{"Row 2"});
    EXPECT_EQ(page_->events, Texts{"tapped 2"});
}

TEST_F(PSListItemsControllerTest, ARadioGroupWithoutAPlaceRemembersItself) {
    writeList({text("cell", "PSGroupCell") + yes("isRadioGroup"), row("PSListItemCell", "1"),
               row("PSListItemCell", "2")});
    show();
    tap("2");
    EXPECT_EQ(checked(), Texts{"Row 2"});
    tap("1");
    EXPECT_EQ(checked(), Texts{"Row 1"});
}

TEST_F(PSListItemsControllerTest, AnItemOutsideARadioGroupIsNoChoice) {
    writeList({text("cell", "PSGroupCell"), row("PSListItemCell", "1", text("value", "x"))});
    show();
    tap("1");
    EXPECT_TRUE(checked().empty());
}
