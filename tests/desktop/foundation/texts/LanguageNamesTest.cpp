#include "texts/LanguageNames.h"

#include <gtest/gtest.h>

using Names = std::vector<std::string>;

TEST(LanguageNamesTest, GoFromTheMostToTheLeastSpecific) {
    EXPECT_EQ(languageNames("pt_BR"),
              (Names{"pt-Latn-BR", "pt_Latn_BR", "pt-BR", "pt_BR", "pt-Latn", "pt_Latn", "pt"}));
    EXPECT_EQ(languageNames("zh_CN"),
              (Names{"zh-Hans-CN", "zh_Hans_CN", "zh-CN", "zh_CN", "zh-Hans", "zh_Hans", "zh"}));
}

TEST(LanguageNamesTest, LeaveNamesOutThatStandForAnotherScript) {
    EXPECT_EQ(languageNames("zh_TW"),
              (Names{"zh-Hant-TW", "zh_Hant_TW", "zh-TW", "zh_TW", "zh-Hant", "zh_Hant"}));
    EXPECT_EQ(languageNames("sr_Latn_RS"), (Names{"sr-Latn-RS", "sr_Latn_RS", "sr-Latn", "sr_Latn"}));
}

TEST(LanguageNamesTest, ALocaleWithoutARegionGetsNone) {
    EXPECT_EQ(languageNames("de"), (Names{"de-Latn", "de_Latn", "de"}));
    EXPECT_EQ(languageNames("zh_Hant"), (Names{"zh-Hant", "zh_Hant"}));
}

TEST(LanguageNamesTest, KeywordsAndVariantsDoNotCount) {
    EXPECT_EQ(languageNames("th_TH@calendar=buddhist"), languageNames("th_TH"));
    EXPECT_EQ(languageNames("en_US_POSIX"), languageNames("en_US"));
}

TEST(LanguageNamesTest, AnUnknownLanguageHasItsOwnName) {
    EXPECT_EQ(languageNames("xx_YY"), (Names{"xx-YY", "xx_YY", "xx"}));
}

TEST(LanguageNamesTest, WithoutALanguageThereAreNone) {
    EXPECT_EQ(languageNames(""), Names{});
    EXPECT_EQ(languageNames("_US"), Names{});
}

TEST(LanguageNamesTest, TellWhatIsReadFromRightToLeft) {
    for (const auto* locale : {"ar_EG", "he_IL", "fa_IR", "ur_PK", "az_Arab_IR"})
        EXPECT_TRUE(isReadFromRightToLeft(locale)) << locale;
    for (const auto* locale : {"en_US", "de_DE", "ja_JP", "az_AZ", ""})
        EXPECT_FALSE(isReadFromRightToLeft(locale)) << locale;
}
