#include "SystemTexts.h"

#include "TestDevice.h"

#include <gtest/gtest.h>

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

TEST(SystemTextsTest, WhatIsNotKnownStaysAsItIs) {
    const TestDevice device({.locale = "de_DE", .timeZone = "UTC"});
    EXPECT_EQ(systemText("Corvex"), "Corvex");
}
