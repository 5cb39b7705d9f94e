#include "TextLayout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr FontStyle body{.size = 17};

double widthOf(const std::vector<QRectF>& rects) {
    double width = 0;
    for (const auto& rect : rects)
        width += rect.width();
    return width;
}

} // namespace

TEST(TextLayoutRangeTest, IsOneRectangleBetweenTheCarets) {
    const std::string text = "Hello world";
    const TextLayout layout(text, body);
    for (std::size_t begin = 0; begin < text.size(); ++begin) {
        for (auto end = begin + 1; end <= text.size(); ++end) {
            const auto rects = layout.rangeRects(begin, end);
            ASSERT_EQ(rects.size(), 1) << begin << " to " << end;
            EXPECT_NEAR(rects[0].left(), layout.caretRect(begin).x(), 0.05);
            EXPECT_NEAR(rects[0].right(), layout.caretRect(end).x(), 0.05);
            EXPECT_EQ(rects[0].height(), body.lineHeight());
        }
    }
}

TEST(TextLayoutRangeTest, IsNothingForNothing) {
    const TextLayout layout("Hello", body);
    EXPECT_TRUE(layout.rangeRects(2, 2).empty());
    EXPECT_TRUE(layout.rangeRects(5, 5).empty());
    EXPECT_TRUE(TextLayout("", body).rangeRects(0, 0).empty());
}

TEST(TextLayoutRangeTest, TakesUpTheWholeLineInAnyWriting) {
    for (const std::string text :
         {"שלום", "مرحبا", "abc שלום def", "e\u0301 👩‍👩‍👧 🇩🇪", "東京"}) {
        const TextLayout layout(text, body);
        const auto rects = layout.rangeRects(0, text.size());
        ASSERT_EQ(rects.size(), 1) << text;
        EXPECT_NEAR(rects[0].width(), layout.lineRect(0).width(), 0.5) << text;
    }
}

TEST(TextLayoutRangeTest, IsInSeveralPlacesWhereDirectionsMeet) {
    const std::string text = "abc שלום def";
    const TextLayout layout(text, body);
    const auto rects = layout.rangeRects(2, 6); // "c ש"
    ASSERT_EQ(rects.size(), 2);
    EXPECT_LT(rects[0].right(), rects[1].left());
    EXPECT_LT(widthOf(rects), layout.lineRect(0).width() / 2);
}

TEST(TextLayoutRangeTest, HasAPlaceForEachCharacterWhereDirectionsMeet) {
    const std::vector<std::string> characters{"a", " ", "ש", "ל", "ו", "ם", " ", "d"};
    std::string text;
    for (const auto& character : characters)
        text += character;
    const TextLayout layout(text, body);
    std::size_t begin = 0;
    for (const auto& character : characters) {
        const auto end = begin + character.size();
        const auto rects = layout.rangeRects(begin, end);
        ASSERT_EQ(rects.size(), 1) << begin;
        EXPECT_GT(rects[0].width(), 2) << begin;
        EXPECT_LE(rects[0].right(), layout.lineRect(0).right() + 0.5) << begin;
        begin = end;
    }
    EXPECT_GT(layout.rangeRects(2, 4)[0].left(), layout.rangeRects(4, 6)[0].left());
}

TEST(TextLayoutRangeTest, IsOneRectangleForEachLine) {
    const std::string text = "one\ntwo\nthree";
    const TextLayout layout(text, body);
    const auto rects = layout.rangeRects(1, 10);
    ASSERT_EQ(rects.size(), 3);
    EXPECT_NEAR(rects[1].top(), body.lineHeight(), 1e-9);
    EXPECT_NEAR(rects[1].width(), layout.lineRect(1).width(), 0.5);
}

TEST(TextLayoutRangeTest, LeavesOutWhatIsCutOff) {
    const std::string text = "A text that is far too long for it";
    const TextLayout layout(text, body, {.maximumWidth = 100, .maximumLines = 1});
    const auto rects = layout.rangeRects(0, text.size());
    ASSERT_EQ(rects.size(), 1);
    EXPECT_LE(rects[0].right(), 100);
    EXPECT_TRUE(layout.rangeRects(text.size() - 3, text.size()).empty());
}
