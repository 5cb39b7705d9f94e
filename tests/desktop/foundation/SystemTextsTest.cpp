#include "SystemTexts.h"

#include "Foundation/NSFileManager.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <vector>

namespace {

std::string cancelIn(const std::string& locale) {
    const TestDevice device({.locale = locale, .timeZone = "UTC"});
    return systemText("Cancel");
}

} // namespace

TEST(SystemTextsTest, TextsAreInTheDevicesLanguage) {
    EXPECT_EQ(cancelIn("en_US"), "Cancel");
    EXPECT_EQ(cancelIn("de_DE"), "Abbrechen");
    EXPECT_EQ(cancelIn("de_AT"), "Abbrechen");
    EXPECT_EQ(cancelIn("ar_EG"), "إلغاء");
    EXPECT_EQ(cancelIn("he_IL"), "ביטול");
}

TEST(SystemTextsTest, OtherLanguagesHaveEnglish) {
    EXPECT_EQ(cancelIn("fr_FR"), "Cancel");
    EXPECT_EQ(cancelIn(""), "Cancel");
}

TEST(SystemTextsTest, WhatALanguageLacksIsInEnglish) {
    const TestDevice device({.locale = "he_IL", .timeZone = "UTC"});
    EXPECT_EQ(systemText("%@ names no code."), "%@ names no code.");
}

TEST(SystemTextsTest, ArgumentsTakeTheirPlaces) {
    const TestDevice device({.locale = "de_DE", .timeZone = "UTC"});
    EXPECT_EQ(systemText("There is no bundle “%@” in %@.", {"Pane", "/var"}),
              "Das Bundle „Pane“ gibt es in /var nicht.");
}

/// A path would else begin at the right with its slash at the other end.
TEST(SystemTextsTest, PathsAreReadFromTheLeftInTextsThatAreNot) {
    const TestDevice device({.locale = "ar_EG", .timeZone = "UTC"});
    EXPECT_EQ(systemText("%@ is empty.", {"/code"}), "\u2068/code\u2069 فارغ.");
}

TEST(SystemTextsTest, ErrorsOfTheHostAreToldToo) {
    {
        const TestDevice device({.locale = "de_DE", .timeZone = "UTC"});
        EXPECT_EQ(systemTextOfError(EACCES), "Keine Berechtigung");
        EXPECT_EQ(systemTextOfError(EXDEV), "Invalid cross-device link") << "which is not known";
        EXPECT_EQ(systemTextOfError(-1), "-1");
    }
    const TestDevice device({.locale = "en_US", .timeZone = "UTC"});
    EXPECT_EQ(systemTextOfError(EACCES), "Permission denied");
}

TEST(SystemTextsTest, ErrorsOfFilesThatAUserReadsAreInTheDevicesLanguageAndEnglishInTheLog) {
    const auto failures = [](const std::string& locale) {
        const TestDevice device({.locale = locale, .timeZone = "UTC"});
        auto& files = NSFileManager::defaultManager();
        device.write("/file", "");
        return std::vector{files.removeItemAtPath("/none").error(),
                           files.createDirectoryAtPath("/file/folder", false).error(),
                           files.createDirectoryAtPath("/file", false).error()};
    };
    const auto english = failures("en_US");
    for (const auto* const locale : {"de_DE", "ar_EG", "he_IL"}) {
        const auto other = failures(locale);
        for (std::size_t index = 0; index < english.size(); ++index) {
            EXPECT_NE(other[index]->localizedDescription(), english[index]->localizedDescription()) << locale;
            EXPECT_EQ(other[index]->description(), english[index]->description()) << locale;
        }
    }
    EXPECT_EQ(failures("de_DE").front()->localizedDescription(), "„none“ konnte nicht entfernt werden.");
}

TEST(SystemTextsTest, WhatIsNotKnownStaysAsItIs) {
    const TestDevice device({.locale = "de_DE", .timeZone = "UTC"});
    EXPECT_EQ(systemText("Corvex"), "Corvex");
}
