#include "propertylists/PropertyListCoding.h"

#include "DecimalCommaLocale.h"
#include "ExactPropertyList.h"
#include "RandomPropertyList.h"
#include "propertylists/PropertyListBudget.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;
using Limits = std::numeric_limits<double>;

std::optional<PropertyList> throughFormat(const PropertyList& value, PropertyListFormat format) {
    const auto bytes = encodePropertyList(value, format);
    return bytes ? decodePropertyList(*bytes) : std::nullopt;
}

testing::AssertionResult survives(const PropertyList& value, PropertyListFormat format) {
    const auto read = throughFormat(value, format);
    if (read && isExactlyEqual(*read, value))
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << value.description() << " came back as " << (read ? read->description() : "nothing");
}

testing::AssertionResult survivesBinary(const PropertyList& value) {
    return survives(value, PropertyListFormat::Binary);
}

testing::AssertionResult survivesXML(const PropertyList& value) {
    return survives(value, PropertyListFormat::XML);
}

PropertyList nested(std::size_t levels) {
    PropertyList value = Array();
    for (std::size_t i = 1; i < levels; ++i)
        value = Array{std::move(value)};
    return value;
}

const std::vector<PropertyList>& integers() {
    static const std::vector<PropertyList> values{
        0,
        1,
        -1,
        127,
        128,
        255,
        256,
        -128,
        65535,
        65536,
        4294967295,
        4294967296,
        std::numeric_limits<std::int64_t>::min(),
        std::numeric_limits<std::int64_t>::max(),
        std::uint64_t{1} << 63U,
        std::numeric_limits<std::uint64_t>::max(),
    };
    return values;
}

const std::vector<std::string>& texts() {
    static const std::vector<std::string> values{
        "",         "a",           " lead and trail \n\t", "<&>\"'",           "]]>",
        "CF$UID",   "e\xCC\x81",   "\xF0\x9F\x98\x80",     "\xF4\x8F\xBF\xBD", "\xED\x9F\xBF\xEE\x80\x80",
        "\xC2\x80", "\xEF\xBF\xBD"};
    return values;
}

constexpr double noTime = 0;
constexpr double startOfYear1 = -63113904000;
constexpr double endOfYear9999 = 252423993599;

} // namespace

TEST(PropertyListCodingTest, BinaryKeepsBooleansApartFromNumbers) {
    EXPECT_TRUE(survivesBinary(true));
    EXPECT_TRUE(survivesBinary(Array{false, 0, 0.0, true, 1, 1.0}));
}

TEST(PropertyListCodingTest, BothFormatsKeepIntegersOfTheWholeSignedAndUnsignedRange) {
    for (const auto& value : integers()) {
        EXPECT_TRUE(survivesBinary(value));
        EXPECT_TRUE(survivesXML(value));
    }
    EXPECT_TRUE(survivesBinary(Array(integers().begin(), integers().end())));
}

TEST(PropertyListCodingTest, BinaryKeepsRealsBitForBit) {
    for (const double value : {0.0, -0.0, 0.1, -1.5, 1e39, Limits::max(), Limits::min(), Limits::denorm_min(),
                               Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(),
                               std::bit_cast<double>(std::uint64_t{0x7FF4'0000'0000'1234}),
                               std::bit_cast<double>(std::uint64_t{0xFFF8'0000'0000'0001})})
        EXPECT_TRUE(survivesBinary(value));
}

TEST(PropertyListCodingTest, XMLKeepsRealsToTheLastDigit) {
    for (const double value : {0.0, 0.1, 1.0 / 3, -1.5, 1e300, 123456789.123456789, Limits::max(),
                               Limits::min(), Limits::denorm_min(), Limits::infinity(), -Limits::infinity()})
        EXPECT_TRUE(survivesXML(value));
}

TEST(PropertyListCodingTest, BinaryKeepsDatesBitForBit) {
    for (const double seconds : {noTime, -0.0, 0.25, 1e-9, 694224000.123456, -978307200.5, startOfYear1,
                                 endOfYear9999, 1e300, Limits::infinity()})
        EXPECT_TRUE(survivesBinary(NSDate{seconds}));
}

TEST(PropertyListCodingTest, XMLKeepsDatesOfAllYearsToTheSecondRoundedDown) {
    for (const double seconds :
         {noTime, startOfYear1, -978307201.0, -978307200.0, -1.0, 694224000.0, 4000000000.0, endOfYear9999})
        EXPECT_TRUE(survivesXML(NSDate{seconds}));
    EXPECT_EQ(throughFormat(NSDate{-0.5}, PropertyListFormat::XML), PropertyList(NSDate{-1}));
    EXPECT_EQ(throughFormat(NSDate{1.75}, PropertyListFormat::XML), PropertyList(NSDate{1}));
}

TEST(PropertyListCodingTest, XMLWritesADateAsISO8601) {
    const auto xml = encodePropertyList(NSDate{694224000}, PropertyListFormat::XML);
    ASSERT_TRUE(xml);
    EXPECT_TRUE(xml->contains("<date>2023-01-01T00:00:00Z</date>")) << *xml;
}

TEST(PropertyListCodingTest, XMLRefusesDatesThatItHasNoTextFor) {
    for (const double seconds :
         {startOfYear1 - 1, endOfYear9999 + 1, Limits::infinity(), Limits::quiet_NaN()})
        EXPECT_FALSE(encodePropertyList(NSDate{seconds}, PropertyListFormat::XML)) << seconds;
}

TEST(PropertyListCodingTest, BothFormatsKeepData) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    for (const std::string& bytes : {std::string(), std::string(1, '\0'), all, std::string(100'000, 'x')}) {
        EXPECT_TRUE(survivesBinary(NSData::dataWithBytes(bytes)));
        EXPECT_TRUE(survivesXML(NSData::dataWithBytes(bytes)));
    }
}

TEST(PropertyListCodingTest, BothFormatsKeepTextsAsKeysAndAsValues) {
    for (const auto& text : texts()) {
        EXPECT_TRUE(survivesBinary(text));
        EXPECT_TRUE(survivesXML(text));
        EXPECT_TRUE(survivesBinary(Dictionary{{text, 5}}));
        EXPECT_TRUE(survivesXML(Array{Dictionary{{text, 5}}}));
    }
}

TEST(PropertyListCodingTest, BinaryKeepsCharactersThatXMLRefuses) {
    for (const std::string text : {"\x01", "\x1F", "\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
        EXPECT_TRUE(survivesBinary(Dictionary{{text, text}}));
        EXPECT_FALSE(encodePropertyList(text, PropertyListFormat::XML));
        EXPECT_FALSE(encodePropertyList(Dictionary{{text, 1}}, PropertyListFormat::XML));
    }
}

TEST(PropertyListCodingTest, BothFormatsKeepEmptyAndNestedCollections) {
    const PropertyList value =
        Array{Array(), Dictionary(), Dictionary{{"a", Array{Dictionary{{"b", Array()}}}}}};
    EXPECT_TRUE(survivesBinary(value));
    EXPECT_TRUE(survivesXML(value));
    EXPECT_TRUE(survivesBinary(Dictionary()));
    EXPECT_TRUE(survivesXML(Array()));
}

TEST(PropertyListCodingTest, NestingIsKeptUpToTheLimitAndRefusedBeyond) {
    const auto deepest = nested(PropertyListBudget::maximumNesting);
    EXPECT_TRUE(survivesBinary(deepest));
    EXPECT_TRUE(survivesXML(deepest));
    EXPECT_FALSE(encodePropertyList(Array{deepest}, PropertyListFormat::Binary));
    EXPECT_FALSE(encodePropertyList(Array{deepest}, PropertyListFormat::XML));
    EXPECT_FALSE(canBeKept("key", deepest));
    EXPECT_TRUE(canBeKept("key", nested(PropertyListBudget::maximumNesting - 1)));
}

TEST(PropertyListCodingTest, AListThatIsTooLargeIsRefused) {
    const std::size_t most = PropertyListBudget::maximumWeight - PropertyListBudget::weightOfValue;
    EXPECT_TRUE(encodePropertyList(std::string(most, 'x'), PropertyListFormat::Binary));
    EXPECT_FALSE(encodePropertyList(std::string(most + 1, 'x'), PropertyListFormat::Binary));
}

TEST(PropertyListCodingTest, TheLargestTextIsReadBackAlsoWhereItTakesTwoBytesACharacter) {
    const std::size_t most = PropertyListBudget::maximumWeight - PropertyListBudget::weightOfValue;
    const std::string text = std::string(most - 4, 'x') + "\xF0\x9F\x98\x80";
    EXPECT_EQ(throughFormat(text, PropertyListFormat::Binary), PropertyList(text));
}

TEST(PropertyListCodingTest, TextThatIsNoTextIsRefusedAsKeyAndAnywhereInAValue) {
    for (const std::string& text :
         {std::string("\xFF"), std::string("\xED\xA0\x80"), std::string("a\0b", 3)}) {
        for (const auto format : {PropertyListFormat::Binary, PropertyListFormat::XML}) {
            EXPECT_FALSE(encodePropertyList(text, format));
            EXPECT_FALSE(encodePropertyList(Dictionary{{text, 1}}, format));
            EXPECT_FALSE(encodePropertyList(Array{Dictionary{{"a", Array{text}}}}, format));
        }
        EXPECT_FALSE(canBeKept(text, 1));
        EXPECT_FALSE(canBeKept("key", text));
        EXPECT_FALSE(canBeKept("key", Dictionary{{text, 1}}));
    }
    EXPECT_TRUE(canBeKept("key", "text"));
}

TEST(PropertyListCodingTest, NumbersAreTheSameWhereTheHostWritesADecimalComma) {
    const DecimalCommaLocale locale;
    ASSERT_EQ(std::strtod("0,5", nullptr), 0.5);
    EXPECT_TRUE(survivesXML(0.5));
    EXPECT_TRUE(survivesBinary(0.5));
    EXPECT_EQ(std::strtod("0,5", nullptr), 0.5) << "the thread's locale was not given back";
}

TEST(PropertyListCodingTest, TenThousandRandomListsSurviveBinaryExactly) {
    const std::uint64_t seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::printf("seed %llu\n", static_cast<unsigned long long>(seed));
    RandomPropertyList random(seed);
    for (int i = 0; i < 10'000; ++i)
        ASSERT_TRUE(survivesBinary(random.next())) << "list " << i;
}
