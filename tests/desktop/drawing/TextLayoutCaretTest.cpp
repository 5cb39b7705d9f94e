#include "TextLayout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr FontStyle body{.size = 17};
const std::string family = "👨‍👩‍👧"; ///< one character for a reader, of 18 bytes

double widthOf(std::string_view text) {
    return TextLayout(text, body).lineRect(0).width();
}

double caretX(const TextLayout& layout, std::size_t index) {
    return layout.caretRect(index).x();
}

} // namespace

TEST(TextLayoutCaretTest, StandsBehindTheTextBeforeIt) {
    const std::string text = "nnmiil";
    const TextLayout layout(text, body);
    for (std::size_t index = 0; index <= text.size(); ++index)
        EXPECT_NEAR(caretX(layout, index), widthOf(text.substr(0, index)), 0.4) << index;
    EXPECT_DOUBLE_EQ(layout.caretRect(0).height(), 1.193 * 17);
    EXPECT_EQ(layout.caretRect(0).width(), 0);
}

TEST(TextLayoutCaretTest, StandsInTheAlignedLine) {
    const TextLayout layout("abc", body, {.maximumWidth = 300, .alignment = HorizontalAlignment::Right});
    EXPECT_NEAR(caretX(layout, 3), 300, 0.05);
    EXPECT_NEAR(caretX(layout, 0), 300 - widthOf("abc"), 0.05);
}

TEST(TextLayoutCaretTest, AnEmptyTextHasOneAtItsAlignment) {
    const TextLayout layout("", body, {.maximumWidth = 100, .alignment = HorizontalAlignment::Center});
    EXPECT_EQ(layout.caretRect(0).topLeft(), QPointF(50, 0));
    EXPECT_EQ(layout.indexAt({70, 3}), 0U);
}

TEST(TextLayoutCaretTest, ThePointOfACaretIsItsIndex) {
    const std::string text = "a b e\u0301 " + family + "x\ny z";
    const TextLayout layout(text, body);
    const auto behindFamily = 8 + family.size();
    const std::vector<std::size_t> indexes{0,
                                           1,
                                           2,
                                           3,
                                           4,
                                           7,
                                           8,
                                           behindFamily,
                                           behindFamily + 1,
                                           behindFamily + 2,
                                           behindFamily + 3,
                                           behindFamily + 4,
                                           text.size()};
    for (const auto index : indexes)
        EXPECT_EQ(layout.indexAt(layout.caretRect(index).center()), index);
}

TEST(TextLayoutCaretTest, TheNearerCaretIsTaken) {
    const TextLayout layout("mm", body);
    const double middle = caretX(layout, 1);
    EXPECT_EQ(layout.indexAt({middle * 0.45, 5}), 0U);
    EXPECT_EQ(layout.indexAt({middle * 0.55, 5}), 1U);
    EXPECT_EQ(layout.indexAt({middle * 1.4, 5}), 1U);
    EXPECT_EQ(layout.indexAt({middle * 1.6, 5}), 2U);
}

TEST(TextLayoutCaretTest, PointsOutsideBelongToTheNearestLineAndEnd) {
    const TextLayout layout("abc\ndef", body);
    EXPECT_EQ(layout.indexAt({-50, -50}), 0U);
    EXPECT_EQ(layout.indexAt({500, -50}), 3U);
    EXPECT_EQ(layout.indexAt({-50, 500}), 4U);
    EXPECT_EQ(layout.indexAt({500, 500}), 7U);
}

TEST(TextLayoutCaretTest, AnIndexWithinACharacterStandsBeforeIt) {
    const TextLayout layout("x" + family + "y", body);
    for (std::size_t index = 1; index < 1 + family.size(); ++index)
        EXPECT_EQ(caretX(layout, index), caretX(layout, 1)) << index;
}

TEST(TextLayoutCaretTest, TheStartOfAWrappedLineIsOnThatLine) {
    const TextLayout layout("one two", body, {.maximumWidth = widthOf("one two") - 2});
    ASSERT_EQ(layout.lineCount(), 2U);
    EXPECT_EQ(layout.caretRect(4).topLeft(), QPointF(0, 1.193 * 17));
    EXPECT_EQ(layout.caretRect(3).top(), 0);
    EXPECT_EQ(layout.indexAt({500, 1}), 3U) << "the end of the first line is not the start of the second";
}

TEST(TextLayoutCaretTest, RunsFromRightToLeftInSuchText) {
    const std::string text = "אבג";
    const TextLayout layout(text, body);
    EXPECT_NEAR(caretX(layout, 0), widthOf(text), 0.1);
    EXPECT_NEAR(caretX(layout, text.size()), 0, 0.1);
    EXPECT_GT(caretX(layout, 2), caretX(layout, 4));
    EXPECT_EQ(layout.indexAt({-10, 5}), text.size());
}

TEST(TextLayoutCaretTest, WhereTextIsNotShownItStandsBehindWhatIs) {
    const std::string text = "Automatic Updates";
    const TextLayout layout(text, body, {.maximumWidth = 80, .maximumLines = 1});
    EXPECT_EQ(layout.caretRect(text.size()), layout.caretRect(text.size() - 1));
    EXPECT_LT(caretX(layout, text.size()), 80);
    EXPECT_LT(layout.indexAt({500, 5}), text.size());
}
