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

TEST(DesktopFont, IsTheBodysWhenThereIsNone) {
    EXPECT_EQ(DesktopFont::styleOf(nullptr), (FontStyle{.size = 17, .weight = FontWeight::Regular}));
}

} // namespace
