#include "SystemColors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

std::vector<Appearance> allAppearances() {
    return {Appearance::Light, Appearance::Dark, Appearance::DarkElevated};
}

std::vector<SystemColor> allRoles() {
    std::vector<SystemColor> roles;
    for (int role = 0; role <= static_cast<int>(SystemColor::ActionSheetCancelCard); ++role)
        roles.push_back(static_cast<SystemColor>(role));
    return roles;
}

void expectColor(SystemColor role, Appearance appearance, const QColor& color) {
    const auto components = systemColor(role, appearance);
    EXPECT_NEAR(components.red * 255, color.red(), 1e-9);
    EXPECT_NEAR(components.green * 255, color.green(), 1e-9);
    EXPECT_NEAR(components.blue * 255, color.blue(), 1e-9);
    EXPECT_NEAR(components.alpha, static_cast<double>(color.alphaF()), 0.003);
}

double brightness(const ColorComponents& color) {
    return color.red + color.green + color.blue;
}

} // namespace

TEST(SystemColorsTest, RolesHaveThePlatformsColors) {
    expectColor(SystemColor::Red, Appearance::Light, {255, 59, 48});
    expectColor(SystemColor::Blue, Appearance::Light, {0, 122, 255});
    expectColor(SystemColor::Blue, Appearance::Dark, {10, 132, 255});
    expectColor(SystemColor::Gray4, Appearance::Light, {209, 209, 214});
    expectColor(SystemColor::SecondaryLabel, Appearance::Light, QColor(60, 60, 67, 153));
    expectColor(SystemColor::Separator, Appearance::Dark, QColor(84, 84, 88, 153));
    expectColor(SystemColor::GroupedBackground, Appearance::Light, {242, 242, 247});
    expectColor(SystemColor::BarBackground, Appearance::Dark, QColor(29, 29, 29, 240));
    expectColor(SystemColor::MenuPanel, Appearance::Dark, QColor(44, 44, 44, 217));
    expectColor(SystemColor::ActionSheetCancelCard, Appearance::Dark, {44, 44, 44});
}

TEST(SystemColorsTest, ComponentsAreFromZeroToOneAndAllColorsCanBeSeen) {
    for (const auto role : allRoles()) {
        for (const auto appearance : allAppearances()) {
            const auto color = systemColor(role, appearance);
            for (const double component : {color.red, color.green, color.blue}) {
                EXPECT_GE(component, 0);
                EXPECT_LE(component, 1);
            }
            EXPECT_GT(color.alpha, 0);
            EXPECT_LE(color.alpha, 1);
        }
    }
}

TEST(SystemColorsTest, OnlyBackgroundsAreElevatedAndEachByOneStep) {
    const std::vector<SystemColor> backgrounds{SystemColor::Background,
                                               SystemColor::SecondaryBackground,
                                               SystemColor::TertiaryBackground,
                                               SystemColor::GroupedBackground,
                                               SystemColor::SecondaryGroupedBackground,
                                               SystemColor::TertiaryGroupedBackground};
    for (const auto role : allRoles()) {
        const auto dark = systemColor(role, Appearance::Dark);
        const auto elevated = systemColor(role, Appearance::DarkElevated);
        if (std::ranges::find(backgrounds, role) == backgrounds.end())
            EXPECT_EQ(dark, elevated) << static_cast<int>(role);
        else
            EXPECT_GT(brightness(elevated), brightness(dark)) << static_cast<int>(role);
    }
    EXPECT_EQ(systemColor(SystemColor::Background, Appearance::DarkElevated),
              systemColor(SystemColor::SecondaryBackground, Appearance::Dark));
    EXPECT_EQ(systemColor(SystemColor::SecondaryBackground, Appearance::DarkElevated),
              systemColor(SystemColor::TertiaryBackground, Appearance::Dark));
}

TEST(SystemColorsTest, GraysGoFromMiddlingTowardsTheBackground) {
    const std::vector<SystemColor> grays{SystemColor::Gray,  SystemColor::Gray2, SystemColor::Gray3,
                                         SystemColor::Gray4, SystemColor::Gray5, SystemColor::Gray6};
    for (std::size_t index = 1; index < grays.size(); ++index) {
        EXPECT_GT(brightness(systemColor(grays[index], Appearance::Light)),
                  brightness(systemColor(grays[index - 1], Appearance::Light)));
        EXPECT_LT(brightness(systemColor(grays[index], Appearance::Dark)),
                  brightness(systemColor(grays[index - 1], Appearance::Dark)));
    }
}

TEST(SystemColorsTest, LabelsAndFillsOfLowerRankAreFainter) {
    using enum SystemColor;
    for (const auto appearance : allAppearances()) {
        const auto alpha = [&](SystemColor role) { return systemColor(role, appearance).alpha; };
        EXPECT_GT(alpha(Label), alpha(SecondaryLabel));
        EXPECT_GT(alpha(SecondaryLabel), alpha(TertiaryLabel));
        EXPECT_GT(alpha(TertiaryLabel), alpha(QuaternaryLabel));
        EXPECT_GT(alpha(Fill), alpha(SecondaryFill));
        EXPECT_GT(alpha(SecondaryFill), alpha(TertiaryFill));
        EXPECT_GT(alpha(TertiaryFill), alpha(QuaternaryFill));
    }
}

TEST(SystemColorsTest, ComponentsBecomeAColorOfThePainter) {
    const QColor color = ColorComponents{.red = 1, .green = 0.5, .blue = 0, .alpha = 0.25}.toQColor();
    EXPECT_EQ(color.red(), 255);
    EXPECT_NEAR(color.green(), 128, 1);
    EXPECT_EQ(color.blue(), 0);
    EXPECT_NEAR(color.alpha(), 64, 1);
}
