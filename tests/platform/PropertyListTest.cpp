#include "Foundation/PropertyList.h"

#include "DecimalCommaLocale.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

TEST(PropertyList, KeepsEachKindAsItWasGiven) {
    EXPECT_NE(PropertyList(true).getIf<bool>(), nullptr);
    EXPECT_NE(PropertyList(1).getIf<std::int64_t>(), nullptr);
    EXPECT_NE(PropertyList(1.0).getIf<double>(), nullptr);
    EXPECT_NE(PropertyList("a").getIf<std::string>(), nullptr);
    EXPECT_NE(PropertyList(std::string_view("a")).getIf<std::string>(), nullptr);
    EXPECT_NE(PropertyList(NSData()).getIf<NSData>(), nullptr);
    EXPECT_NE(PropertyList(NSDate()).getIf<NSDate>(), nullptr);
    EXPECT_NE(PropertyList(Array()).getIf<Array>(), nullptr);
    EXPECT_NE(PropertyList(Dictionary()).getIf<Dictionary>(), nullptr);
    EXPECT_EQ(PropertyList(1).getIf<bool>(), nullptr);
}

TEST(PropertyList, ABooleanAnIntegerAndARealOfTheSameValueDiffer) {
    EXPECT_FALSE(PropertyList(true) == PropertyList(1));
    EXPECT_FALSE(PropertyList(1) == PropertyList(1.0));
    EXPECT_TRUE(PropertyList(1) == PropertyList(std::uint8_t{1}));
}

TEST(PropertyList, IntegersAboveTheSignedRangeKeepTheirValue) {
    constexpr auto largest = std::numeric_limits<std::uint64_t>::max();
    const PropertyList large(largest);
    ASSERT_NE(large.getIf<std::uint64_t>(), nullptr);
    EXPECT_EQ(*large.getIf<std::uint64_t>(), largest);
    EXPECT_EQ(large.description(), "18446744073709551615");
    EXPECT_NE(PropertyList(std::uint64_t{5}).getIf<std::int64_t>(), nullptr);
}

TEST(PropertyList, BooleansAndNumbersAreNumbers) {
    EXPECT_TRUE(PropertyList(false).isNumber());
    EXPECT_TRUE(PropertyList(0).isNumber());
    EXPECT_TRUE(PropertyList(0.5).isNumber());
    EXPECT_FALSE(PropertyList("1").isNumber());
    EXPECT_FALSE(PropertyList(NSDate()).isNumber());
}

TEST(PropertyList, ANumberIsTrueUnlessItIsZero) {
    EXPECT_TRUE(PropertyList(true).boolValue());
    EXPECT_TRUE(PropertyList(-1).boolValue());
    EXPECT_TRUE(PropertyList(0.25).boolValue());
    EXPECT_FALSE(PropertyList(false).boolValue());
    EXPECT_FALSE(PropertyList(0).boolValue());
    EXPECT_FALSE(PropertyList(-0.0).boolValue());
}

TEST(PropertyList, ATextIsTrueByItsFirstTellingCharacter) {
    for (const auto* const text : {"YES", "yes", "true", "T", "1", "  +0009", "-3", "y?"})
        EXPECT_TRUE(PropertyList(text).boolValue()) << text;
    for (const auto* const text : {"", "NO", "false", "0", "000", "on", "-", "- 1"})
        EXPECT_FALSE(PropertyList(text).boolValue()) << text;
}

TEST(PropertyList, CollectionsDataAndDatesAreFalse) {
    EXPECT_FALSE(PropertyList(Array{true}).boolValue());
    EXPECT_FALSE(PropertyList(Dictionary{{"a", true}}).boolValue());
    EXPECT_FALSE(PropertyList(NSData::dataWithBytes("1")).boolValue());
    EXPECT_FALSE(PropertyList(NSDate{1}).boolValue());
}

TEST(PropertyList, RealsAreCutTowardZeroAndHeldInTheIntegerRange) {
    EXPECT_EQ(PropertyList(2.9).integerValue(), 2);
    EXPECT_EQ(PropertyList(-2.9).integerValue(), -2);
    EXPECT_EQ(PropertyList(1e300).integerValue(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(PropertyList(-1e300).integerValue(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(PropertyList(std::numeric_limits<double>::quiet_NaN()).integerValue(), 0);
    EXPECT_EQ(PropertyList(std::numeric_limits<std::uint64_t>::max()).integerValue(),
              std::numeric_limits<std::int64_t>::max());
}

TEST(PropertyList, WhatIsNoNumberIsZero) {
    EXPECT_EQ(PropertyList("7").integerValue(), 0);
    EXPECT_EQ(PropertyList("7").doubleValue(), 0.0);
    EXPECT_EQ(PropertyList(true).doubleValue(), 1.0);
    EXPECT_EQ(PropertyList(7).doubleValue(), 7.0);
}

TEST(PropertyList, DescribesScalarsAsThePlatformPrintsThem) {
    EXPECT_EQ(PropertyList(true).description(), "1");
    EXPECT_EQ(PropertyList(-42).description(), "-42");
    EXPECT_EQ(PropertyList(0.1).description(), "0.1");
    EXPECT_EQ(PropertyList(1.0 / 3).description(), "0.3333333333333333");
    EXPECT_EQ(PropertyList("it's").description(), "it's");
    EXPECT_EQ(PropertyList(NSDate{0}).description(), "2001-01-01 00:00:00 +0000");
    EXPECT_EQ(PropertyList(NSData::dataWithBytes("ab")).description(), "{length = 2, bytes = 0x6162}");
}

TEST(PropertyList, DescribesRealsWithAPointWhereTheHostWritesAComma) {
    const DecimalCommaLocale locale;
    EXPECT_EQ(PropertyList(0.5).description(), "0.5");
    EXPECT_EQ(PropertyList(0.1).description(), "0.1");
}

TEST(PropertyList, DescribesCollectionsOverSeveralLines) {
    EXPECT_EQ(PropertyList(Array()).description(), "(\n)");
    EXPECT_EQ(PropertyList(Dictionary()).description(), "{\n}");
    EXPECT_EQ(PropertyList(Array{NSDate{0}}).description(), "(\n    \"2001-01-01 00:00:00 +0000\"\n)");
    EXPECT_EQ(PropertyList(Array{Array{1}}).description(), "(\n        (\n        1\n    )\n)");
    const PropertyList nested =
        Dictionary{{"an array", Array{1, "plain", "two words", "a\"b\\c\nd"}}, {"k", ""}};
    EXPECT_EQ(nested.description(), "{\n"
                                    "    \"an array\" =     (\n"
                                    "        1,\n"
                                    "        plain,\n"
                                    "        \"two words\",\n"
                                    "        \"a\\\"b\\\\c\\nd\"\n"
                                    "    );\n"
                                    "    k = \"\";\n"
                                    "}");
}
