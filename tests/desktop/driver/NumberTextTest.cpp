#include "NumberText.h"

#include "DecimalCommaLocale.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(NumberText, ReadsDecimalNumbers) {
    EXPECT_EQ(numberFromText("0"), 0.0);
    EXPECT_EQ(numberFromText("-12.5"), -12.5);
    EXPECT_EQ(numberFromText("3e2"), 300.0);
    EXPECT_EQ(numberFromText("1E-3"), 0.001);
    EXPECT_EQ(numberFromText("007"), 7.0);
}

class NoNumber : public testing::TestWithParam<const char*> {};

TEST_P(NoNumber, IsRefused) {
    EXPECT_EQ(numberFromText(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoNumber,
                         testing::Values("", " ", " 1", "1 ", "1x", "1.2.3", "1,5", "+1", "--1", "-", ".",
                                         "e5", "nan", "-nan", "inf", "-inf", "infinity", "NaN(1)", "1e309",
                                         "-1e309", "0x10", "1e", "\xd9\xa1"));

TEST(NumberText, ReadsAPointUnderADecimalCommaToo) {
    const DecimalCommaLocale locale;
    EXPECT_EQ(numberFromText("0.5"), 0.5);
    EXPECT_EQ(numberFromText("0,5"), std::nullopt);
}

TEST(NumberText, CountsFromOneOn) {
    EXPECT_EQ(countFromText("1"), 1);
    EXPECT_EQ(countFromText("2147483647"), 2147483647);
    for (const auto* text :
         {"", "0", "-1", "+1", "1.0", "1e1", "2147483648", "99999999999999999999", " 1", "1 ", "x"})
        EXPECT_EQ(countFromText(text), std::nullopt) << text;
}

} // namespace
