#include "PreferenceKeys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>

namespace {

std::string numbered(std::size_t number) {
    return std::string(PreferenceKeyCatalogue.at(number - 1));
}

} // namespace

TEST(PreferenceKeyCatalogue, Holds41DistinctKeys) {
    EXPECT_EQ(PreferenceKeyCatalogue.size(), 41U);
    const std::set<std::string_view> distinct(PreferenceKeyCatalogue.begin(), PreferenceKeyCatalogue.end());
    EXPECT_EQ(distinct.size(), 41U);
}

TEST(PreferenceKeyCatalogue, KeepsItsOrder) {
    std::string all;
    for (const auto key : PreferenceKeyCatalogue)
        all += std::string(key) + " ";
    EXPECT_EQ(all,
              "kEnabled kCustom kCenter kAppleAccount kcircleIcons kCustomTitleEnable kCustomTitle "
              "kImageEnabled showWifiData showDiskSpace showBatteryHealth knoChevrons "
              "kdisableEdgeToEdgeCellsEnabled organizeSettings hideCompletlyApple customColors "
              "customImageBackgroundEnabled transparentTable hideIcons hideSearchBar hideCellSeparato "
              "customIcloudDetailsEnabled removeFollowUpEnabled removeNotificationAvailable removeSOS "
              "passwordGenerator tweaksTitle systemAppsTitle appStoreAppsTitle customTweakIcon "
              "organizedSettingsPosition blurRadius imageHeight textColor detailTextLabel backgroundColor "
              "kBackgroundColorFallback kDefaultTextColor kDefaultBackgroundColor kCustomImage "
              "customBackgroundImage ");
}

TEST(PreferenceKeyCatalogue, KeepsTheCutShortAndMisspeltKeys) {
    EXPECT_EQ(numbered(15), "hideCompletlyApple");
    EXPECT_EQ(numbered(21), "hideCellSeparato");
    EXPECT_EQ(numbered(5), "kcircleIcons");
    EXPECT_EQ(numbered(12), "knoChevrons");
    EXPECT_EQ(numbered(13), "kdisableEdgeToEdgeCellsEnabled");
}

TEST(PreferenceKeyCatalogue, DoesNotHoldTheMarkerOfTheVersionShown) {
    EXPECT_EQ(std::ranges::count(PreferenceKeyCatalogue, "LastVersionPopupShown"), 0);
}

TEST(ImageFileSet, HoldsThreeNamesWithoutExtensionsInOrder) {
    EXPECT_EQ(ImageFileSet, (std::array<std::string_view, 3>{"kCustomImage-IMG", "kCustomIcon-IMG",
                                                             "customBackgroundImage-IMG"}));
}

TEST(EssentialKeys, AreTwoOfTheCatalogueInOrder) {
    EXPECT_EQ(EssentialKeys, (std::array<std::string_view, 2>{"kEnabled", "kCustom"}));
    for (const auto key : EssentialKeys)
        EXPECT_EQ(std::ranges::count(PreferenceKeyCatalogue, key), 1) << key;
}

TEST(PreferencePaths, AreTheExtensions) {
    EXPECT_EQ(preferenceSuiteName, "com.orvel.corvexprefs");
    EXPECT_EQ(preferenceFilePath, "/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist");
    EXPECT_EQ(imageFolderPath, "/var/mobile/Library/Preferences/com.orvel.corvexprefs");
    EXPECT_EQ(reloadNotificationName, "com.orvel.corvexprefs/ReloadPrefs");
}
