#pragma once

#include <array>
#include <string_view>

/// Where the extension's settings are kept. The two paths are literals, to be converted with
/// `RootPrefixResolver::jailbreakRootPath` right before use; the suite name is the system's to resolve.
inline constexpr std::string_view preferenceSuiteName = "com.orvel.corvexprefs";
inline constexpr std::string_view preferenceFilePath =
    "/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist";
inline constexpr std::string_view imageFolderPath = "/var/mobile/Library/Preferences/com.orvel.corvexprefs";

/// The Darwin notification that tells the extension to read its settings again.
inline constexpr std::string_view reloadNotificationName = "com.orvel.corvexprefs/ReloadPrefs";

/// The keys of the settings, in the order in which a backup visits them. Spelled as the extension reads them;
/// "hideCellSeparato" and "hideCompletlyApple" are meant.
inline constexpr std::array<std::string_view, 41> PreferenceKeyCatalogue = {
    "kEnabled",
    "kCustom",
    "kCenter",
    "kAppleAccount",
    "kcircleIcons",
    "kCustomTitleEnable",
    "kCustomTitle",
    "kImageEnabled",
    "showWifiData",
    "showDiskSpace",
    "showBatteryHealth",
    "knoChevrons",
    "kdisableEdgeToEdgeCellsEnabled",
    "organizeSettings",
    "hideCompletlyApple",
    "customColors",
    "customImageBackgroundEnabled",
    "transparentTable",
    "hideIcons",
    "hideSearchBar",
    "hideCellSeparato",
    "customIcloudDetailsEnabled",
    "removeFollowUpEnabled",
    "removeNotificationAvailable",
    "removeSOS",
    "passwordGenerator",
    "tweaksTitle",
    "systemAppsTitle",
    "appStoreAppsTitle",
    "customTweakIcon",
    "organizedSettingsPosition",
    "blurRadius",
    "imageHeight",
    "textColor",
    "detailTextLabel",
    "backgroundColor",
    "kBackgroundColorFallback",
    "kDefaultTextColor",
    "kDefaultBackgroundColor",
    "kCustomImage",
    "customBackgroundImage",
};

/// The names of the images that the user chose, in the image folder. Without extensions.
inline constexpr std::array<std::string_view, 3> ImageFileSet = {
    "kCustomImage-IMG",
    "kCustomIcon-IMG",
    "customBackgroundImage-IMG",
};

/// The keys of which a foreign backup holds at least one, or else it is none of ours.
inline constexpr std::array<std::string_view, 2> EssentialKeys = {"kEnabled", "kCustom"};
