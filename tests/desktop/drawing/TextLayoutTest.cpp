#include "TextLayout.h"

#include "Steps.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr FontStyle body{.size = 17};

double widthOf(std::string_view text, const FontStyle& style = body) {
    return TextLayout(text, style).lineRect(0).width();
}

TextLayout within(double width, std::string_view text, std::size_t lines = 0) {
    return {text, body, {.maximumWidth = width, .maximumLines = lines}};
}

/// The widths of the lines, each told by the text that is as wide.
void expectLines(const TextLayout& layout, const std::vector<std::string>& texts) {
    ASSERT_EQ(layout.lineCount(), texts.size());
    for (std::size_t line = 0; line < texts.size(); ++line)
        EXPECT_NEAR(layout.lineRect(line).width(), widthOf(texts[line]), 0.05) << texts[line];
}

} // namespace

TEST(TextLayoutTest, OneLineIsAsHighAsThePlatformsLabels) {
    struct Expected {
        double size;
        double height;
    };

    for (const auto [size, height] :
         {Expected{34, 40 + 2 / 3.0}, Expected{28, 33 + 2 / 3.0}, Expected{22, 26 + 1 / 3.0},
          Expected{20, 24}, Expected{17, 20 + 1 / 3.0}, Expected{16, 19 + 1 / 3.0}, Expected{15, 18},
          Expected{13, 15 + 2 / 3.0}, Expected{12, 14 + 1 / 3.0}, Expected{11, 13 + 1 / 3.0}})
        EXPECT_NEAR(TextLayout("Settings", {.size = size}, {.pixelScale = 3}).size().height(), height, 1e-9)
            << size;
}

TEST(TextLayoutTest, ATitleIsAsWideAsOnThePlatform) {
    EXPECT_NEAR(widthOf("Settings", {.size = 17, .weight = FontWeight::Semibold}), 66.7, 0.3);
}

TEST(TextLayoutTest, SizesAreWholePixelsThatHoldTheText) {
    for (const double scale : {1.0, 2.0, 3.0}) {
        const TextLayout layout("Notifications", body, {.pixelScale = scale});
        const double width = widthOf("Notifications");
        EXPECT_NEAR(layout.size().width() * scale, std::ceil(width * scale), 1e-9);
        EXPECT_NEAR(layout.size().height() * scale, std::ceil(1.193 * 17 * scale), 1e-9);
    }
}

TEST(TextLayoutTest, LinesAreTheLineHeightApartAndSizesCountThemTogether) {
    const TextLayout layout("a\nb\nc", body, {.pixelScale = 3});
    ASSERT_EQ(layout.lineCount(), 3U);
    for (std::size_t line = 0; line < 3; ++line) {
        const double top = 1.193 * 17 * static_cast<double>(line);
        EXPECT_DOUBLE_EQ(layout.baseline(line), top + 0.952 * 17);
        EXPECT_DOUBLE_EQ(layout.lineRect(line).top(), top);
        EXPECT_DOUBLE_EQ(layout.lineRect(line).height(), 1.193 * 17);
    }
    EXPECT_NEAR(layout.size().height(), std::ceil(3 * 1.193 * 17 * 3) / 3, 1e-9);
}

TEST(TextLayoutTest, ATextFitsTheSizeThatItReports) {
    for (const auto* const text : {"Settings", "Ask Before Resetting", "Wi-Fi", "W", "日本語", "مرحبا"}) {
        for (const double scale : {1.0, 2.0, 3.0}) {
            const auto size = TextLayout(text, body, {.pixelScale = scale}).size();
            const TextLayout again(text, body,
                                   {.maximumWidth = size.width(), .maximumLines = 1, .pixelScale = scale});
            EXPECT_FALSE(again.isTruncated()) << text;
            EXPECT_EQ(again.size(), size) << text;
        }
    }
}

TEST(TextLayoutTest, HeavierTextsAreWider) {
    const std::string text = "Restore from Backup";
    double previous = 0;
    for (const auto weight : {FontWeight::Light, FontWeight::Regular, FontWeight::Medium,
                              FontWeight::Semibold, FontWeight::Bold}) {
        const double width = widthOf(text, {.size = 17, .weight = weight});
        EXPECT_GT(width, previous);
        previous = width;
    }
}

TEST(TextLayoutTest, AnEmptyTextIsOneLineHighWithoutWidth) {
    const TextLayout layout("", body, {.pixelScale = 3});
    EXPECT_EQ(layout.lineCount(), 1U);
    EXPECT_EQ(layout.size().width(), 0);
    EXPECT_NEAR(layout.size().height(), 20 + 1 / 3.0, 1e-9);
}

TEST(TextLayoutTest, WrapsBetweenWordsWhereTheNextOneDoesNotFit) {
    const double width = widthOf("one two");
    expectLines(within(width + 1, "one two three four"), {"one two", "three", "four"});
    expectLines(within(width - 1, "one two"), {"one", "two"});
    expectLines(within(widthOf("three four") + 1, "one two three four"), {"one two", "three four"});
}

TEST(TextLayoutTest, AWordThatFitsNoLineIsWrappedWithin) {
    const auto layout = within(widthOf("MMMM") + 1, "MMMMMMMMMM");
    expectLines(layout, {"MMMM", "MMMM", "MM"});
}

TEST(TextLayoutTest, EveryKindOfLineBreakStartsALine) {
    for (const auto* const text : {"ab\ncd", "ab\r\ncd", "ab\rcd", "ab\u2028cd", "ab\u2029cd"})
        expectLines(TextLayout(text, body), {"ab", "cd"});
}

TEST(TextLayoutTest, EmptyLinesCount) {
    expectLines(TextLayout("\n\na\n", body), {"", "", "a", ""});
}

TEST(TextLayoutTest, ALastLineThatIsTooLongEndsWithAnEllipsis) {
    const double width = widthOf("Automatic…") + 1;
    const auto layout = within(width, "Automatic Updates", 1);
    EXPECT_TRUE(layout.isTruncated());
    expectLines(layout, {"Automatic…"});
}

TEST(TextLayoutTest, AnEllipsisTakesAsLittleTextAsItCan) {
    const std::string text = "Illuminating";
    for (std::size_t kept = 1; kept < text.size(); ++kept) {
        const auto cut = text.substr(0, kept) + "…";
        const double enough = widthOf(cut) + 0.1;
        if (enough < widthOf(text)) {
            expectLines(within(enough, text, 1), {cut});
        }
    }
}

TEST(TextLayoutTest, NoSpaceStandsBeforeAnEllipsis) {
    expectLines(within(widthOf("one …") + 1, "one two three", 1), {"one…"});
}

TEST(TextLayoutTest, LinesBeforeTheLastAreWrappedAsUsual) {
    const double width = widthOf("four fi…") + 0.5;
    const auto layout = within(width, "on it\nfour five six", 2);
    EXPECT_TRUE(layout.isTruncated());
    expectLines(layout, {"on it", "four fi…"});
}

TEST(TextLayoutTest, ATextThatIsTooLongJustEndsWhenToldSo) {
    const TextLayout layout(
        "one two three", body,
        {.maximumWidth = widthOf("one two") + 1, .maximumLines = 1, .endsWithEllipsis = false});
    EXPECT_TRUE(layout.isTruncated());
    EXPECT_EQ(layout.lineCount(), 1U);
    EXPECT_NEAR(layout.lineRect(0).width(), widthOf("one two"), 1);
}

TEST(TextLayoutTest, ALineBreakBehindTheLastLineIsTextThatIsNotShown) {
    const TextLayout layout("one\ntwo", body, {.maximumLines = 1});
    EXPECT_TRUE(layout.isTruncated());
    expectLines(layout, {"one…"});
}

TEST(TextLayoutTest, AsManyLinesAsAllowedAreNotTruncated) {
    EXPECT_FALSE(TextLayout("one\ntwo", body, {.maximumLines = 2}).isTruncated());
    EXPECT_FALSE(TextLayout("one", body, {.maximumLines = 5}).isTruncated());
}

TEST(TextLayoutTest, NoLineIsWiderThanAllowed) {
    const std::string text =
        "The quick brown fox jumps over a lazy dog. שלום עולם. e\u0301e\u0301e\u0301 😀😀";
    for (const double width : steps(30, 400, 7)) {
        for (const std::size_t lines : {0U, 1U, 2U}) {
            const auto layout = within(width, text, lines);
            for (std::size_t line = 0; line < layout.lineCount(); ++line)
                EXPECT_LE(layout.lineRect(line).width(), width + 0.02) << width << ' ' << line;
        }
    }
}

TEST(TextLayoutTest, LinesAreAlignedWithinTheMaximumWidth) {
    for (const auto* const text : {"one", "אחת"}) {
        const auto lineIn = [&](HorizontalAlignment alignment) {
            return TextLayout(text, body, {.maximumWidth = 200, .alignment = alignment}).lineRect(0);
        };
        EXPECT_DOUBLE_EQ(lineIn(HorizontalAlignment::Left).left(), 0);
        EXPECT_DOUBLE_EQ(lineIn(HorizontalAlignment::Center).center().x(), 100);
        EXPECT_DOUBLE_EQ(lineIn(HorizontalAlignment::Right).right(), 200);
    }
}

TEST(TextLayoutTest, WithoutAMaximumWidthTheWidestLineIsTheRoom) {
    const TextLayout layout("wide line\nl", body, {.alignment = HorizontalAlignment::Right});
    EXPECT_DOUBLE_EQ(layout.lineRect(1).right(), layout.size().width());
    EXPECT_NEAR(layout.lineRect(0).left(), 0, 1);
}

TEST(TextLayoutTest, AnyTextAndAnyRoomIsLaidOut) {
    for (const auto* const text :
         {"\xFF\xFE\x80", "👨‍👩‍👧‍👦👨‍👩‍👧‍👦", "\u0301\u0301",
          "אב גד\nab אב", "\u202E abc \u202C", "\t\t", "\u200B\u200D", "\uFFFF", "ﷺ"}) {
        for (const double width : {-1.0, 0.0, 5.0, 1e9}) {
            const auto layout = within(width, text, 2);
            EXPECT_GE(layout.lineCount(), 1U) << text;
            EXPECT_LE(layout.lineCount(), 2U) << text;
            EXPECT_LE(layout.size().width(), std::max(1.0, width)) << text << width;
        }
    }
}

TEST(TextLayoutTest, AVeryLongTextIsCutWithoutLayingAllOfItOutInLines) {
    const std::string text(200'000, 'w');
    const auto layout = within(300, text, 3);
    EXPECT_EQ(layout.lineCount(), 3U);
    EXPECT_TRUE(layout.isTruncated());
}

TEST(TextLayoutTest, LettersThatAreJoinedAreNotSpacedOut) {
    constexpr FontStyle large{.size = 34, .weight = FontWeight::Bold};
    constexpr FontStyle small{.size = 20, .weight = FontWeight::Bold};
    const auto spacing = [&](std::string_view text) {
        return widthOf(text, large) / large.size - widthOf(text, small) / small.size;
    };
    EXPECT_NEAR(spacing("ببب"), 0, 1e-3);
    EXPECT_GT(spacing("nnn"), 0.05);
}
