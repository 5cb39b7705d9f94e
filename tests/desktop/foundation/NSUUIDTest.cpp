#include "Foundation/NSUUID.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

TEST(NSUUIDTest, IsGroupedUpperCaseHexadecimal) {
    const auto text = NSUUIDString();
    ASSERT_EQ(text.size(), 36U);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isHyphen = i == 8 || i == 13 || i == 18 || i == 23;
        EXPECT_TRUE(std::string_view(isHyphen ? "-" : "0123456789ABCDEF").contains(text[i])) << text;
    }
}

TEST(NSUUIDTest, IsOfTheRandomVersionAndTheStandardVariant) {
    for (int i = 0; i < 100; ++i) {
        const auto text = NSUUIDString();
        EXPECT_EQ(text[14], '4') << text;
        EXPECT_TRUE(std::string_view("89AB").contains(text[19])) << text;
    }
}

TEST(NSUUIDTest, TenThousandAreDistinct) {
    std::set<std::string> texts;
    for (int i = 0; i < 10'000; ++i)
        texts.insert(NSUUIDString());
    EXPECT_EQ(texts.size(), 10'000U);
}
