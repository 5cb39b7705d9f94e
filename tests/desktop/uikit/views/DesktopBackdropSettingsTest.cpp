#include "views/DesktopBackdropSettings.h"

#include "DesktopColor.h"
#include "ObjectiveC/Class.h"

#include <gtest/gtest.h>

namespace {

constexpr int adaptive = 2;

Ref<DesktopBackdropSettings> settings() {
    return dynamicCast<DesktopBackdropSettings>(_UIBackdropViewSettings::settingsForStyle(adaptive));
}

ColorComponents tintIn(UserInterfaceStyle style) {
    Traits traits;
    traits.style = style;
    return DesktopColor::resolve(settings()->tint(), traits);
}

} // namespace

TEST(DesktopBackdropSettingsTest, thereAreSomeForTheAdaptiveStyleAlone) {
    struct Case {
        int style;
        bool isThere;
    };

    for (const auto& [style, isThere] :
         {Case{-2, false}, {-1, false}, {0, false}, {1, false}, {2, true}, {3, false}, {2060, false}})
        EXPECT_EQ(static_cast<bool>(_UIBackdropViewSettings::settingsForStyle(style)), isThere) << style;
}

TEST(DesktopBackdropSettingsTest, theyAreOfThePlatformsClass) {
    EXPECT_EQ(settings()->isa().name(), "_UIBackdropViewSettings");
}

TEST(DesktopBackdropSettingsTest, theTintIsLightOrDarkAndLetsTheBlurThrough) {
    EXPECT_GT(tintIn(UserInterfaceStyle::Light).green, 0.9);
    EXPECT_LT(tintIn(UserInterfaceStyle::Dark).green, 0.2);
    for (const auto style : {UserInterfaceStyle::Light, UserInterfaceStyle::Dark}) {
        EXPECT_GT(tintIn(style).alpha, 0.5);
        EXPECT_LT(tintIn(style).alpha, 1);
    }
}

TEST(DesktopBackdropSettingsTest, theyBlurAndDeepenColours) {
    EXPECT_GE(settings()->blur().blurRadius, 20);
    EXPECT_GT(settings()->blur().saturation, 1);
}
