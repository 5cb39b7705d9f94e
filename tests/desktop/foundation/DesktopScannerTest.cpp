#include "DesktopScanner.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

std::optional<std::uint32_t> scanned(std::string_view text) {
    return NSScanner::scannerWithString(text)->scanHexInt();
}

} // namespace

TEST(DesktopScannerTest, ReadsHexadecimalDigitsOfEitherCase) {
    EXPECT_EQ(scanned("0"), 0U);
    EXPECT_EQ(scanned("ff"), 255U);
    EXPECT_EQ(scanned("1aF"), 0x1AFU);
}

TEST(DesktopScannerTest, APrefixMayStandBeforeThem) {
    EXPECT_EQ(scanned("0x1f"), 0x1FU);
    EXPECT_EQ(scanned("0X1F"), 0x1FU);
    EXPECT_EQ(scanned("0x"), 0U);
    EXPECT_EQ(scanned("0xg"), 0U);
}

TEST(DesktopScannerTest, StopsAtWhatIsNoDigit) {
    EXPECT_EQ(scanned("1g"), 1U);
    EXPECT_EQ(scanned("1 2"), 1U);
}

TEST(DesktopScannerTest, SkipsWhiteSpace) {
    EXPECT_EQ(scanned(" \t\r\nf"), 15U);
    EXPECT_EQ(scanned("\u00A0\u2003\u2028f"), 15U);
}

TEST(DesktopScannerTest, ReadsNothingWhereNoDigitComesNext) {
    for (const auto* const text : {"", " ", "g1", "#F", "-1", "+1", "\xFF", "é"})
        EXPECT_EQ(scanned(text), std::nullopt) << text;
}

TEST(DesktopScannerTest, ANumberThatIsTooLargeIsTheLargest) {
    EXPECT_EQ(scanned("123456789"), std::numeric_limits<std::uint32_t>::max());
    EXPECT_EQ(scanned("ffffffffffffffffffffffff"), std::numeric_limits<std::uint32_t>::max());
}

TEST(DesktopScannerTest, GoesOnWhereItHasStopped) {
    const auto scanner = NSScanner::scannerWithString("a b g");
    EXPECT_EQ(scanner->scanHexInt(), 10U);
    EXPECT_EQ(scanner->scanHexInt(), 11U);
    EXPECT_EQ(scanner->scanHexInt(), std::nullopt);
    EXPECT_EQ(scanner->scanHexInt(), std::nullopt);
}
