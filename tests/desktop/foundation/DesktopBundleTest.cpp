#include "DesktopBundle.h"

#include "TestDevice.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace std::string_literals;

namespace {

constexpr auto bundlePath = "/Library/Pane.bundle";

class DesktopBundleTest : public testing::Test {
protected:
    /// Makes the device anew, with that locale and an empty bundle.
    void use(const std::string& locale) {
        device.reset();
        device.emplace(TestDevice::Settings{.locale = locale});
        std::filesystem::create_directories(device->hostPath(bundlePath));
        bundle = DesktopBundle::withPath(bundlePath);
        ASSERT_TRUE(bundle);
    }

    void write(const std::string& name, const std::string& content) const {
        device->write(bundlePath + ("/" + name), content);
    }

    /// Puts a table into the folder of each language, with the language's name under "key".
    void writeTables(std::initializer_list<std::string> languages) const {
        for (const auto& language : languages)
            write(language + ".lproj/Localizable.strings", "key = \"" + language + "\";");
    }

    [[nodiscard]] std::string text(std::string_view key, std::optional<std::string> value = {},
                                   std::optional<std::string> table = {}) const {
        return bundle->localizedStringForKey(key, std::move(value), std::move(table));
    }

    /// Which of the tables a fresh bundle object takes for a locale.
    std::string chosen(const std::string& locale, std::initializer_list<std::string> languages) {
        use(locale);
        writeTables(languages);
        return text("key", "none");
    }

    std::optional<TestDevice> device;
    Ref<DesktopBundle> bundle;
};

using Lines = std::vector<std::string>;

} // namespace

TEST_F(DesktopBundleTest, ExistsWhereThereIsAFolder) {
    use("en_US");
    write("file", "");
    EXPECT_EQ(bundle->path(), bundlePath);
    EXPECT_FALSE(DesktopBundle::withPath("/Library/None.bundle"));
    EXPECT_FALSE(DesktopBundle::withPath("/Library/Pane.bundle/file"));
}

TEST_F(DesktopBundleTest, FindsATextInTheNamedTable) {
    use("en_US");
    write("en.lproj/Errors.strings", "key = error;");
    write("en.lproj/Localizable.strings", "key = text;");
    EXPECT_EQ(text("key", {}, "Errors"), "error");
    EXPECT_EQ(text("key", {}, "Localizable"), "text");
}

TEST_F(DesktopBundleTest, TheTableIsLocalizableUnlessItIsNamed) {
    use("en_US");
    writeTables({"en"});
    EXPECT_EQ(text("key"), "en");
    EXPECT_EQ(text("key", {}, ""), "en");
}

TEST_F(DesktopBundleTest, AMissingKeyIsAnsweredWithTheValueOrElseTheKey) {
    use("en_US");
    writeTables({"en"});
    EXPECT_EQ(text("other", "value"), "value");
    EXPECT_EQ(text("other", ""), "other");
    EXPECT_EQ(text("other"), "other");
    EXPECT_EQ(text("", "value"), "value");
    EXPECT_EQ(text(""), "");
}

TEST_F(DesktopBundleTest, AMissingTableIsAnsweredLikeAMissingKey) {
    use("en_US");
    writeTables({"en"});
    EXPECT_EQ(text("key", "value", "None"), "value");
    EXPECT_EQ(text("key", {}, "None"), "key");
}

TEST_F(DesktopBundleTest, AnEmptyTextIsAText) {
    use("en_US");
    write("en.lproj/Localizable.strings", "key = \"\";");
    EXPECT_EQ(text("key", "value"), "");
}

TEST_F(DesktopBundleTest, PrefersTheMostSpecificLanguage) {
    EXPECT_EQ(chosen("pt_BR", {"pt", "pt_BR", "pt-BR", "en", "Base"}), "pt-BR");
    EXPECT_EQ(chosen("pt_BR", {"pt", "pt_BR", "pt-PT", "en", "Base"}), "pt_BR");
    EXPECT_EQ(chosen("pt_BR", {"pt", "pt-PT", "en", "Base"}), "pt");
    EXPECT_EQ(chosen("zh_CN", {"zh-Hans", "zh-Hant", "zh", "en"}), "zh-Hans");
    EXPECT_EQ(chosen("zh_TW", {"zh-Hans", "zh-Hant", "zh", "en"}), "zh-Hant");
    EXPECT_EQ(chosen("zh_Hant_HK", {"zh-Hans", "zh-Hant", "zh", "en"}), "zh-Hant");
}

TEST_F(DesktopBundleTest, FallsBackToTheDevelopmentRegionThenToBaseThenToTheBundleItself) {
    EXPECT_EQ(chosen("fr_FR", {"en", "Base", "de"}), "en");
    EXPECT_EQ(chosen("fr_FR", {"Base", "de"}), "Base");
    EXPECT_EQ(chosen("fr_FR", {"de"}), "none");
    write("Plain.strings", "key = plain;");
    EXPECT_EQ(text("key", {}, "Plain"), "plain");
    EXPECT_EQ(chosen("", {"en", "Base"}), "en");
}

TEST_F(DesktopBundleTest, TheDevelopmentRegionIsThatOfTheInformationFile) {
    use("fr_FR");
    write("Info.plist",
          "<plist><dict><key>CFBundleDevelopmentRegion</key><string>de</string></dict></plist>");
    writeTables({"en", "de", "Base"});
    EXPECT_EQ(text("key"), "de");
}

TEST_F(DesktopBundleTest, TheDevelopmentRegionIsEnglishWhenTheInformationFileDoesNotSay) {
    for (const auto* const content :
         {"<plist><dict><key>CFBundleDevelopmentRegion</key><integer>1</integer></dict></plist>",
          "<plist><dict><key>CFBundleDevelopmentRegion</key><string>../../Other/de</string></dict></plist>",
          "<plist><dict/></plist>", "<plist><array/></plist>", "damaged"}) {
        use("fr_FR");
        write("Info.plist", content);
        device->write("/Other/de.lproj/Localizable.strings", "key = outside;");
        writeTables({"en", "de", "Base"});
        EXPECT_EQ(text("key"), "en") << content;
    }
}

TEST_F(DesktopBundleTest, TheFirstFileThatExistsDecidesForAllKeysOfTheTable) {
    use("pt_BR");
    write("pt-BR.lproj/Localizable.strings", "other = x;");
    writeTables({"pt", "en"});
    EXPECT_EQ(text("key", "value"), "value");
}

TEST_F(DesktopBundleTest, EachTableFindsItsOwnLanguage) {
    use("pt_BR");
    write("pt-BR.lproj/Localizable.strings", "key = brazilian;");
    write("en.lproj/Errors.strings", "key = english;");
    EXPECT_EQ(text("key"), "brazilian");
    EXPECT_EQ(text("key", {}, "Errors"), "english");
}

TEST_F(DesktopBundleTest, ADamagedTableIsLoggedOnceAndAnswersNothing) {
    use("pt_BR");
    writeTables({"en"});
    write("pt.lproj/Localizable.strings", "key = x;\nother");
    EXPECT_EQ(text("key", "value"), "value");
    EXPECT_EQ(text("key"), "key");
    EXPECT_EQ(device->log().take(),
              Lines{"/Library/Pane.bundle/pt.lproj/Localizable.strings:2: the string table is damaged: "
                    "expected \"=\" or \";\" after a key"});
}

TEST_F(DesktopBundleTest, MissingTablesAreNotLogged) {
    use("en_US");
    EXPECT_EQ(text("key"), "key");
    EXPECT_EQ(device->log().take(), Lines{});
}

TEST_F(DesktopBundleTest, TablesStayInsideTheBundle) {
    use("en_US");
    device->write("/Library/Other.strings", "key = outside;");
    device->write("/Library/Pane.bundle/inner/Table.strings", "key = inner;");
    device->write("/Library/Pane.bundle/en.lproj/Localizable.strings", "key = cut;");
    for (const auto& name : {"../Other"s, "../../Other"s, "inner/Table"s, "en.lproj/Localizable"s,
                             "/Library/Other"s, ".."s, "Localizable.strings\0"s})
        EXPECT_EQ(text("key", "value", name), "value") << name;
}

TEST_F(DesktopBundleTest, ATableIsReadOncePerBundleObject) {
    use("en_US");
    writeTables({"en"});
    EXPECT_EQ(text("key"), "en");
    EXPECT_EQ(text("key", {}, "Late"), "key");
    write("en.lproj/Localizable.strings", "key = changed;");
    write("en.lproj/Late.strings", "key = late;");
    EXPECT_EQ(text("key"), "en");
    EXPECT_EQ(text("key", {}, "Late"), "key");
    EXPECT_EQ(DesktopBundle::withPath(bundlePath)->localizedStringForKey("key", {}, {}), "changed");
}

TEST_F(DesktopBundleTest, TheMainBundleNeedNotExist) {
    use("en_US");
    const auto main = NSBundle::mainBundle();
    EXPECT_EQ(Device::current().mainBundle()->path(), "/Applications/Preferences.app");
    EXPECT_EQ(main->localizedStringForKey("key", "value", {}), "value");
    EXPECT_EQ(main->localizedStringForKey("key", {}, "Table"), "key");
}

TEST_F(DesktopBundleTest, TheMainBundleIsOneObjectWithTheTextsOfTheApplication) {
    use("en_US");
    device->write("/Applications/Preferences.app/en.lproj/Localizable.strings", "OK = Okay;");
    EXPECT_EQ(NSBundle::mainBundle()->localizedStringForKey("OK", {}, {}), "Okay");
    EXPECT_EQ(NSBundle::mainBundle(), NSBundle::mainBundle());
}

TEST_F(DesktopBundleTest, EachDeviceHasAMainBundleOfItsOwn) {
    for (const auto& word : {"one"s, "two"s}) {
        use("en_US");
        device->write("/Applications/Preferences.app/en.lproj/Localizable.strings", "key = " + word + ";");
        EXPECT_EQ(NSBundle::mainBundle()->localizedStringForKey("key", {}, {}), word);
    }
}
