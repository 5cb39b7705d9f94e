#include "HexColor.h"

#include "DesktopColor.h"

#include <gtest/gtest.h>

namespace {

ColorComponents colorOf(const std::optional<std::string>& text) {
    return DesktopColor::resolve(colorFromHex(text), Traits());
}

constexpr ColorComponents clear{.red = 0, .green = 0, .blue = 0, .alpha = 0};
constexpr ColorComponents red{.red = 1, .green = 0, .blue = 0, .alpha = 1};

} // namespace

TEST(HexColorTest, SixDigitsAreThreeOpaqueParts) {
    EXPECT_EQ(colorOf("FF0000"), red);
    EXPECT_EQ(colorOf("3366cc"), (ColorComponents{51 / 255.0, 102 / 255.0, 204 / 255.0, 1}));
}

TEST(HexColorTest, ThreeDigitsCountTwice) {
    EXPECT_EQ(colorOf("F00"), red);
    EXPECT_EQ(colorOf("36c"), colorOf("3366CC"));
}

TEST(HexColorTest, AFourthPartIsTheAlpha) {
    EXPECT_EQ(colorOf("FF000080"), (ColorComponents{1, 0, 0, 128 / 255.0}));
    EXPECT_EQ(colorOf("F008"), (ColorComponents{1, 0, 0, 136 / 255.0}));
}

TEST(HexColorTest, AnyOtherLengthIsClear) {
    for (const auto* const text : {"", "F", "FF", "FF000", "#FF0000", "FF00000", "FF0000800"})
        EXPECT_EQ(colorOf(text), clear) << text;
    EXPECT_EQ(colorOf(std::nullopt), clear);
}

TEST(HexColorTest, WhatIsNoDigitCountsAsWhatCouldBeRead) {
    EXPECT_EQ(colorOf("#F0"), (ColorComponents{0, 1, 0, 1}));
    EXPECT_EQ(colorOf("gg1g0f"), (ColorComponents{0, 1 / 255.0, 15 / 255.0, 1}));
    EXPECT_EQ(colorOf("0xff f"), (ColorComponents{0, 1, 15 / 255.0, 1}));
    EXPECT_EQ(colorOf("  -1+1"), (ColorComponents{0, 0, 0, 1}));
}

TEST(HexColorTest, LengthsAreThoseOfThePlatformsTexts) {
    EXPECT_EQ(colorOf("éFé"), (ColorComponents{0, 1, 0, 1}));
    EXPECT_EQ(colorOf("€€FF00"), (ColorComponents{0, 1, 0, 1}));
    EXPECT_EQ(colorOf("😀F"), (ColorComponents{0, 0, 1, 1}));
    EXPECT_EQ(colorOf("F😀FFF"), (ColorComponents{15 / 255.0, 0, 1, 1}));
    EXPECT_EQ(colorOf("F😀"), (ColorComponents{1, 0, 0, 1}));
    EXPECT_EQ(colorOf("😀😀"), (ColorComponents{0, 0, 0, 0}));
}
