#include "PageFixture.h"
#include "accessibility/AccessibilityElement.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

using namespace std::chrono_literals;
using Texts = std::vector<std::string>;

class PSListControllerHeightsTest : public PageFixture {
protected:
    /// From now on the page answers that, and is asked again.
    void setHeight(const std::string& id, double height) {
        page_->heights.insert_or_assign(id, height);
        page_->heightsAsked.clear();
        page_->table()->beginUpdates();
        page_->table()->endUpdates();
    }

    static NSIndexPath pathOf(IndexPath row) {
        return {static_cast<std::int64_t>(row.section), static_cast<std::int64_t>(row.row)};
    }

    static Texts labels(const std::vector<AccessibilityElement>& elements) {
        Texts found;
        std::ranges::transform(elements, std::back_inserter(found), &AccessibilityElement::label);
        return found;
    }
};

} // namespace

TEST_F(PSListControllerHeightsTest, ARowIsAsHighAsItsListSaysElseAsSuitsIt) {
    writeList({row("PSStaticTextCell", "a"),
               row("PSStaticTextCell", "b", value("height", "<integer>60</integer>"))});
    show();
    EXPECT_EQ(listRow("a").height, 44);
    EXPECT_EQ(listRow("b").height, 60);
    constexpr NSIndexPath second{.section = 0, .row = 1};
    EXPECT_EQ(page_->specifierAtIndexPath(second), page_->specifierForID("b"));
    EXPECT_EQ(page_->PSListController::heightForRowAtIndexPath(*page_->table(), second), 60);
}

TEST_F(PSListControllerHeightsTest, ThereIsNoSpecifierBeyondTheRows) {
    writeList({row("PSStaticTextCell", "a"), row("PSGroupCell", "head")});
    show();
    for (const auto& beyond :
         {NSIndexPath{0, 1}, NSIndexPath{1, 0}, NSIndexPath{2, 0}, NSIndexPath{0, -1}, NSIndexPath{-1, 0}}) {
        EXPECT_EQ(page_->specifierAtIndexPath(beyond), nullptr);
        EXPECT_EQ(page_->PSListController::heightForRowAtIndexPath(*page_->table(), beyond),
                  UITableViewAutomaticDimension);
    }
}

TEST_F(PSListControllerHeightsTest, ThePageDecidesOverTheList) {
    writeList({row("PSStaticTextCell", "a", value("height", "<integer>60</integer>")),
               row("PSStaticTextCell", "b", value("height", "<integer>60</integer>")),
               row("PSStaticTextCell", "c"), row("PSStaticTextCell", "d")});
    show();
    setHeight("a", 80);
    setHeight("b", UITableViewAutomaticDimension);
    setHeight("c", 0);
    setHeight("d", std::numeric_limits<double>::quiet_NaN());
    settle();
    EXPECT_EQ(listRow("a").height, 80);
    EXPECT_EQ(listRow("b").height, 44);
    EXPECT_EQ(listRow("c").height, 0);
    EXPECT_EQ(listRow("d").height, 44);
}

TEST_F(PSListControllerHeightsTest, AnUpdateAsksForEveryHeightOnce) {
    writeList({row("PSStaticTextCell", "a"), row("PSGroupCell", "head"), row("PSStaticTextCell", "b"),
               row("PSStaticTextCell", "c")});
    show();
    setHeight("b", 0);
    EXPECT_EQ(page_->heightsAsked, (Texts{"a", "b", "c"}));
}

TEST_F(PSListControllerHeightsTest, ARowsCellIsAmongItsProperties) {
    writeList({row("PSStaticTextCell", "a")});
    show();
    EXPECT_EQ(specifier("a").propertyObjectForKey(PSTableCellKey).get(), &cell("a"));
    EXPECT_EQ(specifier("a").propertyObjectForKey("other"), nullptr);
}

TEST_F(PSListControllerHeightsTest, ACellThatIsUsedAgainIsNoMoreTheOtherRows) {
    Texts items;
    for (auto number = 0; number < 60; ++number)
        items.push_back(row("PSStaticTextCell", std::to_string(number)));
    writeList(items);
    show();
    const auto before = peer().table().cells();
    for (const auto& [row, cell] : before)
        cell->setClipsToBounds(true);
    peer().scrollRowIntoView(59);
    EXPECT_EQ(specifier("0").propertyObjectForKey(PSTableCellKey), nullptr);
    std::size_t usedAgain = 0;
    for (const auto& [row, cell] : peer().table().cells()) {
        EXPECT_FALSE(cell->layer().peer().masksToBounds);
        EXPECT_EQ(peer().specifierAt(pathOf(row))->propertyObjectForKey(PSTableCellKey).get(), cell.get());
        if (std::ranges::find(before, cell, &TableCells::Cells::value_type::second) != before.end())
            ++usedAgain;
    }
    EXPECT_GT(usedAgain, 10U);
}

TEST_F(PSListControllerHeightsTest, ARowOfNoHeightIsNotSeenNorTouchedNorReached) {
    writeList({row("PSButtonCell", "a", text("action", "tapped:")),
               row("PSButtonCell", "b", text("action", "tapped:")),
               row("PSSwitchCell", "c", text("key", "c"))});
    show();
    const auto top = listRow("b").frame.origin.y;
    setHeight("b", 0);
    setHeight("c", 0);
    settle();
    layOut();
    EXPECT_EQ(listRow("b").frame, CGRectMake(16, top, 358, 0));
    EXPECT_EQ(peer().table().rowAt({100, top + 1}), std::nullopt);
    const auto found = labels(AccessibilityElement::allIn(page_->view()));
    EXPECT_NE(std::ranges::find(found, "Row a"), found.end());
    EXPECT_EQ(std::ranges::find(found, "Row b"), found.end());
    EXPECT_EQ(std::ranges::find(found, "Row c"), found.end());
    const auto place = peer().table().view().peer().convertToScreen(CGPoint{100, top});
    for (const auto offset : {-0.1, 0.0, 0.1, 10.0})
        Phone::tap(CGPoint{place.x, place.y + offset});
    settle();
    EXPECT_EQ(page_->events, Texts{"tapped a"}); // of which the first still is
}

TEST_F(PSListControllerHeightsTest, WritingAValueAsksForNoHeights) {
    writeList({keptRow("PSSwitchCell", "a")});
    show();
    page_->heightsAsked.clear();
    peer().setValue(specifier("a"), true);
    settle();
    EXPECT_TRUE(page_->heightsAsked.empty());
}

TEST_F(PSListControllerHeightsTest, WithoutAnIdARowIsNamedByItsKeyOrLabel) {
    writeList({text("cell", "PSSwitchCell") + text("key", "k"),
               text("cell", "PSStaticTextCell") + text("label", "L"), text("cell", "PSGroupCell")});
    show();
    const auto rows = page_->specifiers();
    EXPECT_EQ(rows[0]->propertyForKey(PSIDKey), PropertyList("k"));
    EXPECT_EQ(rows[1]->propertyForKey(PSIDKey), PropertyList("L"));
    EXPECT_EQ(rows[2]->propertyForKey(PSIDKey), std::nullopt);
    EXPECT_EQ(page_->specifierForID(""), nullptr);
}
