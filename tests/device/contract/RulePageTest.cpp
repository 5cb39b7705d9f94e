#include "Framework.h"
#include "Journal.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

constexpr double automaticHeight = -1; // the framework is to find out

/// A page that hides its second row, "row", while its first, "group", reads as a number that is no.
class RulePageTest : public testing::Test {
protected:
    RulePageTest() {
        const id rows = specifiersOf(page);
        controlling = elementOf(rows, 0);
        dependent = elementOf(rows, 1);
        setProperty(dependent, text("group, on, show"), "dynamicRule");
        perform(page, "collectDynamicSpecifiersFromArray:", rows);
        takeJournal();
    }

    ~RulePageTest() override { objc_release(page); }

    static void setProperty(id specifier, id value, const char* key) {
        performWithTwo(specifier, "setProperty:forKey:", value, text(key));
    }

    [[nodiscard]] bool has(const char* property) const { return invokeForBoolean(page, property); }

    /// What was sent, but for the table's making.
    [[nodiscard]] static Lines sent() {
        Lines lines = takeJournal();
        std::erase_if(lines, [](const std::string& line) { return line.contains("initWithFrame:"); });
        return lines;
    }

    const id page = newByName("cxBannerController");
    id controlling = nullptr;
    id dependent = nullptr;
};

} // namespace

TEST_F(RulePageTest, TheRulesAreKeptInADictionaryOfTheFrameworks) {
    EXPECT_TRUE(has("hasDynamicSpecifiers"));
    const id rules = perform(page, "dynamicSpecifiers", nullptr);
    EXPECT_EQ(perform(rules, "objectForKey:", text("group")), dependent);
    perform(page, "collectDynamicSpecifiersFromArray:", nullptr);
    EXPECT_FALSE(has("hasDynamicSpecifiers"));
    EXPECT_EQ(perform(page, "dynamicSpecifiers", nullptr), rules);
    EXPECT_EQ(perform(rules, "objectForKey:", text("group")), nullptr);
}

TEST_F(RulePageTest, TheFrameworkAsksForAHeightByMessage) {
    EXPECT_EQ(heightOfRow(page, 0), automaticHeight);
    EXPECT_EQ(heightOfRow(page, 1), automaticHeight);
    setProperty(controlling, boolean(false), "value");
    takeJournal();
    EXPECT_EQ(heightOfRow(page, 1), 0.0);
    EXPECT_EQ(sent(), (Lines{"-[cxBannerController specifierAtIndexPath:] 0.1",
                             "-[cxBannerController specifierForID:] \"group\"",
                             "-[cxBannerController readPreferenceValue:] PSSpecifier"}));
    EXPECT_EQ(heightOfRow(page, 0), automaticHeight);
    EXPECT_EQ(heightOfRow(page, 7), automaticHeight);
}

TEST_F(RulePageTest, TheCellOfAHiddenRowIsCutOff) {
    const id cell = newByName("PSTableCell");
    setProperty(dependent, cell, "cellObject");
    setProperty(controlling, number(0), "value");
    takeJournal();
    EXPECT_EQ(heightOfRow(page, 1), 0.0);
    EXPECT_EQ(takeJournal().back(), "-[PSTableCell setClipsToBounds:] 1");
    setProperty(controlling, number(1), "value");
    EXPECT_EQ(heightOfRow(page, 1), automaticHeight);
    EXPECT_EQ(takeJournal().back(), "-[PSTableCell setClipsToBounds:] 0");
    objc_release(cell);
}

TEST_F(RulePageTest, AWriteGoesToTheFrameworkFirstAndThenUpdatesTheTable) {
    setValueOf(page, number(0), controlling);
    EXPECT_EQ(sent(), (Lines{"-[cxBannerController setPreferenceValue:specifier:] 0 PSSpecifier",
                             "-[UITableView beginUpdates]", "-[UITableView endUpdates]"}));
    setValueOf(page, number(0), dependent);
    EXPECT_EQ(takeJournal(), Lines{"-[cxBannerController setPreferenceValue:specifier:] 0 PSSpecifier"});
}

TEST_F(RulePageTest, APageOfAnotherKindHasTheFrameworksHeights) {
    const id plain = newByName("cxLabelController");
    specifiersOf(plain);
    takeJournal();
    EXPECT_EQ(heightOfRow(plain, 1), 52.5);
    EXPECT_EQ(sent(), Lines{"-[cxLabelController tableView:heightForRowAtIndexPath:] UITableView 0.1"});
    objc_release(plain);
}

TEST_F(RulePageTest, EachPageLoadsItsListOnce) {
    for (const auto& [name, list] :
         std::vector<std::pair<std::string, std::string>>{{"cxBannerController", "Banner"},
                                                          {"cxOrganizeController", "Organize"},
                                                          {"cxLabelController", "Label"},
                                                          {"cxGeneralController", "General"},
                                                          {"cxExtraController", "Extra"},
                                                          {"cxColorController", "Color"},
                                                          {"cxBackgroundController", "Background"}}) {
        const id opened = newByName(name.c_str());
        ASSERT_NE(opened, nullptr) << name;
        const id specifiers = specifiersOf(opened);
        const auto loading =
            std::string("-[").append(name).append(" loadSpecifiersFromPlistName:target:] \"");
        EXPECT_EQ(takeJournal(), Lines{std::string(loading).append(list).append("\" ").append(name)});
        EXPECT_EQ(specifiersOf(opened), specifiers);
        EXPECT_TRUE(takeJournal().empty());
        objc_release(opened);
    }
}

TEST_F(RulePageTest, EachPageThatHasRulesReadsThemWithItsList) {
    for (const auto* const name : {"cxBannerController", "cxOrganizeController", "cxBackgroundController"}) {
        const id opened = newByName(name);
        EXPECT_EQ(perform(opened, "dynamicSpecifiers", nullptr), nullptr) << name;
        specifiersOf(opened);
        EXPECT_NE(perform(opened, "dynamicSpecifiers", nullptr), nullptr) << name;
        objc_release(opened);
    }
}

TEST_F(RulePageTest, ItsPropertiesAndItsJudgementAreMessagesToo) {
    for (const bool any : {false, true}) {
        invokeWithBooleans(page, "setHasDynamicSpecifiers:", any, false);
        EXPECT_EQ(has("hasDynamicSpecifiers"), any);
    }
    auto* const rules = newByName("NSMutableDictionary");
    perform(page, "setDynamicSpecifiers:", rules);
    EXPECT_EQ(perform(page, "dynamicSpecifiers", nullptr), rules);
    objc_release(rules);
    perform(page, "setDynamicSpecifiers:", nullptr);
    EXPECT_EQ(perform(page, "dynamicSpecifiers", nullptr), nullptr);
    EXPECT_EQ(invokeForInteger(page, "shouldHideSpecifier:", dependent) & 0xFF, 0);
    setProperty(controlling, number(0), "value");
    EXPECT_NE(invokeForInteger(page, "shouldHideSpecifier:", dependent) & 0xFF, 0);
}

TEST_F(RulePageTest, WhatThePageDoesNotOverrideIsTheFrameworks) {
    perform(page, "reloadSpecifiers", nullptr);
    perform(page, "becomeFirstResponder", nullptr);
    EXPECT_EQ(takeJournal(), (Lines{"-[cxBannerController reloadSpecifiers]",
                                    "-[cxBannerController becomeFirstResponder]"}));
}
