#include "AboutPage.h"

#include "PSListControllerPeer.h"
#include "TestDevice.h"
#include "screen/Screen.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

using Texts = std::map<std::string, std::string>;

/// The rows' labels, each with the value that the page answers for it.
Texts shownBy(AboutPage& page) {
    Texts texts;
    for (const auto& specifier : page.specifiers()) {
        const auto label = specifier->propertyForKey("label");
        const auto value = page.readPreferenceValue(*specifier);
        if (label && value)
            texts[label->description()] = value->description();
    }
    return texts;
}

} // namespace

TEST(AboutPageTest, TellsOfAPhoneInTheDevicesLanguage) {
    const TestDevice device({.locale = "de_DE", .timeZone = "Europe/Berlin"});
    const Screen screen({});
    const auto page = make<AboutPage>();
    EXPECT_EQ(page->peer().title(), "Info");
    EXPECT_EQ(shownBy(*page), (Texts{{"Bildschirm", "390 × 844 @3x"},
                                     {"Erscheinungsbild", "Hell"},
                                     {"Gerät", "Telefon auf einem Desktop"},
                                     {"Sprache", "Deutsch (Deutschland)"},
                                     {"Zeitzone", "Europe/Berlin"}}));
}

TEST(AboutPageTest, TellsOfEachDeviceInLanguagesThatAreReadFromTheRight) {
    const auto deviceIn = [](const char* locale, Idiom idiom) {
        const TestDevice device({.locale = locale, .timeZone = "UTC"});
        const Screen screen({.idiom = idiom});
        return shownBy(*make<AboutPage>());
    };
    EXPECT_EQ(deviceIn("ar_EG", Idiom::Phone).at("الجهاز"), "هاتف على سطح المكتب");
    EXPECT_EQ(deviceIn("ar_EG", Idiom::Pad).at("الجهاز"), "جهاز لوحي على سطح المكتب");
    EXPECT_EQ(deviceIn("he_IL", Idiom::Phone).at("מכשיר"), "טלפון על שולחן העבודה");
    EXPECT_EQ(deviceIn("he_IL", Idiom::Pad).at("מכשיר"), "טאבלט על שולחן העבודה");
}

TEST(AboutPageTest, TellsOfATabletInTheDark) {
    const TestDevice device;
    const Screen screen({.idiom = Idiom::Pad, .style = UserInterfaceStyle::Dark, .scale = 2});
    const auto page = make<AboutPage>();
    EXPECT_EQ(shownBy(*page), (Texts{{"Appearance", "Dark"},
                                     {"Device", "Tablet on a desktop"},
                                     {"Language", "English (United States)"},
                                     {"Screen", "820 × 1180 @2x"},
                                     {"Time Zone", "UTC"}}));
}

TEST(AboutPageTest, ARowOfAnotherPageHasNoValue) {
    const TestDevice device;
    const Screen screen({});
    const auto page = make<AboutPage>();
    const auto row = make<DesktopSpecifier>(PropertyList::Dictionary{{"label", "Elsewhere"}});
    EXPECT_EQ(page->readPreferenceValue(*row), std::nullopt);
}
