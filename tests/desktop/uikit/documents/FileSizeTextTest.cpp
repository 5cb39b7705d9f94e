#include "documents/FileSizeText.h"

#include "TestDevice.h"

#include <gtest/gtest.h>

TEST(FileSizeTextTest, IsInTheLargestUnitThatFits) {
    const TestDevice device;
    EXPECT_EQ(fileSizeText(0), "0 bytes");
    EXPECT_EQ(fileSizeText(1), "1 byte");
    EXPECT_EQ(fileSizeText(999), "999 bytes");
    EXPECT_EQ(fileSizeText(1000), "1 KB");
    EXPECT_EQ(fileSizeText(12'345), "12 KB");
    EXPECT_EQ(fileSizeText(999'499), "999 KB");
    EXPECT_EQ(fileSizeText(999'500), "1 MB");
    EXPECT_EQ(fileSizeText(1'234'567), "1.2 MB");
    EXPECT_EQ(fileSizeText(2'000'000'000), "2 GB");
    EXPECT_EQ(fileSizeText(5'000'000'000'000'000), "5,000 TB");
}

TEST(FileSizeTextTest, IsInTheDevicesLocale) {
    const TestDevice device({.locale = "de_DE"});
    EXPECT_EQ(fileSizeText(1'234'567), "1,2 MB");
    EXPECT_EQ(fileSizeText(7), "7 Byte");
}

TEST(FileSizeTextTest, IsInLanguagesThatAreReadFromTheRight) {
    const auto bytesIn = [](const char* locale, std::uint64_t bytes) {
        const TestDevice device({.locale = locale});
        return fileSizeText(bytes);
    };
    EXPECT_EQ(bytesIn("ar_EG", 515), "٥١٥ بايت");
    EXPECT_EQ(bytesIn("he_IL", 515), "515 בתים");
    EXPECT_EQ(bytesIn("he_IL", 1), "1 בית");
}
