#include "DesktopFont.h"

#include <gtest/gtest.h>

namespace {

TEST(DesktopFont, IsRegularWhenItIsTheSystems) {
    const auto font = UIFont::systemFontOfSize(20);
    EXPECT_EQ(DesktopFont::styleOf(font).size, 20);
    EXPECT_EQ(DesktopFont::styleOf(font), (FontStyle{.size = 20, .weight = FontWeight::Regular}));
}

TEST(DesktopFont, KeepsItsWeight) {
    EXPECT_EQ(DesktopFont::styleOf(DesktopFont::font(34, FontWeight::Bold)).weight, FontWeight::Bold);
}

TEST(DesktopFont, HasTheWeightThatIsNearestToTheNumber) {
    const auto weightOf = [](double number) {
        return DesktopFont::styleOf(UIFont::systemFontOfSize(11, number)).weight;
    };
    EXPECT_EQ(weightOf(UIFontWeightLight), FontWeight::Light);
    EXPECT_EQ(weightOf(UIFontWeightMedium), FontWeight::Medium);
    EXPECT_EQ(weightOf(0), FontWeight::Regular);
    EXPECT_EQ(weightOf(0.31), FontWeight::Semibold);
    EXPECT_EQ(weightOf(9), FontWeight::Bold);
    EXPECT_EQ(DesktopFont::styleOf(UIFont::boldSystemFontOfSize(22)),
              (FontStyle{.size = 22, .weight = FontWeight::Bold}));
}

TEST(DesktopFont, IsTheBodysWhenThereIsNone) {
    EXPECT_EQ(DesktopFont::styleOf(nullptr), (FontStyle{.size = 17, .weight = FontWeight::Regular}));
}

} // namespace
