#include "DesktopColor.h"

#include <gtest/gtest.h>

namespace {

constexpr Traits light{.style = UserInterfaceStyle::Light};
constexpr Traits dark{.style = UserInterfaceStyle::Dark};
constexpr Traits darkSheet{.style = UserInterfaceStyle::Dark, .elevated = true};

TEST(DesktopColor, LooksTheSameEverywhereWhenFixed) {
    const auto color = UIColor::colorWithRed(0.1, 0.2, 0.3, 0.4);
    const ColorComponents components{.red = 0.1, .green = 0.2, .blue = 0.3, .alpha = 0.4};
    EXPECT_EQ(DesktopColor::resolve(color, light), components);
    EXPECT_EQ(DesktopColor::resolve(color, darkSheet), components);
}

TEST(DesktopColor, DependsOnTheAppearanceWhenItIsTheSystems) {
    const auto color = DesktopColor::system(SystemColor::Background);
    EXPECT_EQ(DesktopColor::resolve(color, light), systemColor(SystemColor::Background, Appearance::Light));
    EXPECT_EQ(DesktopColor::resolve(color, dark), systemColor(SystemColor::Background, Appearance::Dark));
    EXPECT_EQ(DesktopColor::resolve(color, darkSheet),
              systemColor(SystemColor::Background, Appearance::DarkElevated));
    EXPECT_NE(DesktopColor::resolve(color, dark), DesktopColor::resolve(color, darkSheet));
}

TEST(DesktopColor, IsClearWhenThereIsNone) {
    EXPECT_EQ(DesktopColor::resolve(nullptr, light).alpha, 0);
    EXPECT_EQ(DesktopColor::resolve(UIColor::clearColor(), light).alpha, 0);
}

TEST(DesktopColor, HasThePlatformsPlainColours) {
    EXPECT_EQ(DesktopColor::resolve(UIColor::blackColor(), dark), (ColorComponents{0, 0, 0, 1}));
    EXPECT_EQ(DesktopColor::resolve(UIColor::whiteColor(), dark), (ColorComponents{1, 1, 1, 1}));
    EXPECT_EQ(DesktopColor::resolve(UIColor::grayColor(), dark), (ColorComponents{0.5, 0.5, 0.5, 1}));
    EXPECT_EQ(DesktopColor::resolve(UIColor::yellowColor(), dark), (ColorComponents{1, 1, 0, 1}));
    EXPECT_NEAR(DesktopColor::resolve(UIColor::lightGrayColor(), dark).red, 2.0 / 3, 1e-12);
    EXPECT_EQ(DesktopColor::resolve(UIColor::colorWithWhite(0.2, 0.3), dark),
              (ColorComponents{0.2, 0.2, 0.2, 0.3}));
    EXPECT_EQ(DesktopColor::resolve(UIColor::labelColor(), dark),
              systemColor(SystemColor::Label, Appearance::Dark));
    EXPECT_EQ(DesktopColor::resolve(UIColor::systemBlueColor(), dark),
              systemColor(SystemColor::Blue, Appearance::Dark));
    EXPECT_EQ(DesktopColor::resolve(UIColor::systemGreenColor(), dark),
              systemColor(SystemColor::Green, Appearance::Dark));
    EXPECT_EQ(DesktopColor::resolve(UIColor::systemOrangeColor(), dark),
              systemColor(SystemColor::Orange, Appearance::Dark));
    EXPECT_EQ(DesktopColor::resolve(UIColor::systemRedColor(), dark),
              systemColor(SystemColor::Red, Appearance::Dark));
}

} // namespace
