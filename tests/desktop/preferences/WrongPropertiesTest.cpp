#include "PageFixture.h"
#include "RectGeometry.h"

#include <array>

namespace {

using namespace std::chrono_literals;

/// A value of each type that a property list has, and some that are out of the ordinary.
constexpr std::array values{"<string>text</string>",
                            "<string></string>",
                            "<integer>3</integer>",
                            "<integer>-9223372036854775808</integer>",
                            "<integer>18446744073709551615</integer>",
                            "<real>1e300</real>",
                            "<real>-0.5</real>",
                            "<true/>",
                            "<false/>",
                            "<data>AAEC</data>",
                            "<date>2026-11-16T03:12:00Z</date>",
                            "<array/>",
                            "<array><dict/><integer>1</integer></array>",
                            "<dict/>",
                            "<dict><key>prompt</key><integer>1</integer></dict>"};

constexpr std::array keys{"cell",
                          "cellClass",
                          "label",
                          "id",
                          "defaults",
                          "key",
                          "default",
                          "get",
                          "set",
                          "action",
                          "buttonAction",
                          "enabled",
                          "height",
                          "PostNotification",
                          "detail",
                          "icon",
                          "hasIcon",
                          "requiredCapabilities",
                          "hidesDisclosureIndicator",
                          "prioritizeValueTextDisplay",
                          "footerText",
                          "footerAlignment",
                          "headerDetailText",
                          "headerCellClass",
                          "footerCellClass",
                          "negate",
                          "validValues",
                          "validTitles",
                          "shortTitles",
                          "confirmation",
                          "isDestructive",
                          "placeholder",
                          "staticTextMessage",
                          "autoCaps",
                          "isContinuous",
                          "isNumeric",
                          "isRadioGroup",
                          "isSegmented",
                          "keyboard",
                          "leftImage",
                          "max",
                          "min",
                          "segmentCount",
                          "showValue",
                          "value",
                          "valuesDataSource",
                          "titlesDataSource",
                          "confirmationAction",
                          "title"};

constexpr std::array kinds{"PSGroupCell",      "PSLinkCell",       "PSSwitchCell",  "PSButtonCell",
                           "PSTitleValueCell", "PSStaticTextCell", "PSFancyCell",   "PSLinkListCell",
                           "PSListItemCell",   "PSSliderCell",     "PSSegmentCell", "PSEditTextCell"};

/// By the property.
class WrongPropertiesTest : public PageFixture, public testing::WithParamInterface<const char*> {
protected:
    /// A row of the kind whose only unusual property is that one.
    static std::string rowWith(const std::string& kind, const std::string& key, std::size_t which) {
        auto item = value(key, values.at(which));
        const auto add = [&item, &key](const std::string& other, const std::string& otherText) {
            if (other != key)
                item += text(other, otherText);
        };
        add("cell", kind);
        add("id", "subject" + std::to_string(which));
        add("key", "subject");
        add("defaults", domain);
        add("label", "Subject");
        return item;
    }

    /// Rows of the kind with every value of the property, between two plain ones.
    void showAll(const std::string& kind) {
        std::vector<std::string> items{row("PSGroupCell", "first")};
        for (std::size_t which = 0; which < values.size(); ++which)
            items.push_back(rowWith(kind, GetParam(), which));
        items.push_back(row("PSStaticTextCell", "last"));
        writeList(items);
        show();
    }

    /// Looks at each row, and taps it where a control would be.
    void useEverything() {
        for (std::size_t index = 0; index < peer().rows().size(); ++index) {
            peer().scrollRowIntoView(index);
            const auto row = peer().rows()[index];
            EXPECT_GE(row.height, 0);
            EXPECT_LE(row.height, 10000);
            const auto seen = peer().table().view().peer().convertToScreen(row.frame);
            finger.touch(TouchPhase::Began, {CGRectGetMaxX(seen) - 40, CGRectGetMidY(seen)});
            finger.touch(TouchPhase::Ended, {CGRectGetMaxX(seen) - 40, CGRectGetMidY(seen)});
            advance(500ms);
        }
    }
};

} // namespace

TEST_P(WrongPropertiesTest, LeaveThePageWhole) {
    for (const auto* const kind : kinds) {
        SCOPED_TRACE(kind);
        showAll(kind);
        const auto rows = peer().rows();
        ASSERT_GE(rows.size(), 2U);
        EXPECT_EQ(rows.front().id, "first");
        EXPECT_EQ(rows.back().id, "last");
        EXPECT_LE(log().size(), 2 * values.size());
        useEverything();
        EXPECT_EQ(listRow("last").height, 44);
    }
}

INSTANTIATE_TEST_SUITE_P(OfEveryProperty, WrongPropertiesTest, testing::ValuesIn(keys),
                         [](const auto& parameter) { return std::string(parameter.param); });

using WrongPropertiesLogTest = PageFixture;

TEST_F(WrongPropertiesLogTest, EachIsLoggedOnceByWhatItMustBe) {
    writeList({value("label", "<integer>3</integer>") + value("enabled", "<array/>") +
               value("height", "<string>60</string>") + value("validTitles", "<dict/>") +
               value("confirmation", "<true/>") + value("footerAlignment", "<string>1</string>")});
    show();
    EXPECT_EQ(log().size(), 6U);
    page_->view().peer().setNeedsLayout();
    screen.layoutIfNeeded();
    static_cast<void>(peer().rows());
    EXPECT_TRUE(log().empty());
}

TEST_F(WrongPropertiesLogTest, ALineNamesTheListTheItemAndTheProperty) {
    writeList({row("PSLinkCell", "a", value("height", "<real>-3</real>"))});
    show();
    EXPECT_EQ(log(), (std::vector<std::string>{std::string(bundlePath) +
                                               "/Rows.plist: item 1: 'height' is not a height in points; it "
                                               "counts as missing."}));
    EXPECT_EQ(listRow("a").height, 44);
    EXPECT_EQ(specifier("a").propertyForKey("height"), PropertyList(-3.0));
}
