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
    EXPECT_EQ(systemText("%@ Documents"), "%@ Documents");
}

TEST(SystemTextsTest, WhatIsNotKnownStaysAsItIs) {
    const TestDevice device({.locale = "de_DE", .timeZone = "UTC"});
    EXPECT_EQ(systemText("Corvex"), "Corvex");
}
