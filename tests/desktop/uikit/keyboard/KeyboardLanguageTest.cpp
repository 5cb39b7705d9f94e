#include "keyboard/KeyboardLanguage.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

/// The first letters of each keyboard.
std::vector<std::string> beginnings(const std::string& locale) {
    std::vector<std::string> found;
    for (const auto& language : KeyboardLanguage::forLocale(locale))
        found.emplace_back(language.letters[0].substr(0, 6));
    return found;
}

} // namespace

TEST(KeyboardLanguageTest, isTheDevicesAndALatinOneBesideOtherLetters) {
    EXPECT_THAT(beginnings("en_US"), ElementsAre("qwerty"));
    EXPECT_THAT(beginnings("de_CH"), ElementsAre("qwertz"));
    EXPECT_THAT(beginnings("ar_EG"), ElementsAre("ضصث", "qwerty"));
    EXPECT_THAT(beginnings("he_IL"), ElementsAre("קרא", "qwerty"));
}

TEST(KeyboardLanguageTest, isLatinAloneForWhatIsNotKnown) {
    EXPECT_THAT(beginnings("fa_IR"), ElementsAre("qwerty"));
    EXPECT_FALSE(KeyboardLanguage::forLocale("fa_IR")[0].isOneOfSeveral);
}
