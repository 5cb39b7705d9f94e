#include "propertylists/PropertyListCoding.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_literals;
using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

std::string bigEndian(std::uint64_t value, int size) {
    std::string bytes;
    for (int i = size - 1; i >= 0; --i)
        bytes += i >= 8 ? '\0' : static_cast<char>(value >> static_cast<unsigned>(8 * i));
    return bytes;
}

/// A binary property list of these objects, the first of them on top.
std::string binaryFile(const std::vector<std::string>& objects, int referenceSize = 1) {
    std::string file = "bplist00";
    std::string offsets;
    for (const auto& object : objects) {
        offsets += bigEndian(file.size(), 4);
        file += object;
    }
    const auto table = file.size();
    return file + offsets + std::string(6, '\0') + '\4' + static_cast<char>(referenceSize) +
           bigEndian(objects.size(), 8) + bigEndian(0, 8) + bigEndian(table, 8);
}

std::string xmlFile(const std::string& content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" + content + "</plist>";
}

/// \param count arrays, each with two references to the next
std::string doublingFile(int count) {
    std::vector<std::string> objects;
    for (int i = 1; i <= count; ++i)
        objects.push_back('\xA2' + bigEndian(static_cast<std::uint64_t>(i), 1) +
                          bigEndian(static_cast<std::uint64_t>(i), 1));
    objects.emplace_back("\x09");
    return binaryFile(objects);
}

std::string repeated(std::string_view text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

const std::string sample = *encodePropertyList(Dictionary{{"array", Array{1, -1, 0.5, true, NSDate{1.5}}},
                                                          {"text", "\xE2\x82\xAC"},
                                                          {"data", NSData::dataWithBytes("abc")}},
                                               PropertyListFormat::Binary);

} // namespace

TEST(DamagedPropertyListTest, TheFilesMadeHereAreSoundButForTheirDamage) {
    EXPECT_EQ(decodePropertyList(binaryFile({"\x09"})), PropertyList(true));
    EXPECT_EQ(decodePropertyList(binaryFile({"\xD1\x01\x02"s,
                                             "\x51"
                                             "a"s,
                                             "\x10\x05"s})),
              PropertyList(Dictionary{{"a", 5}}));
    EXPECT_EQ(decodePropertyList(xmlFile("<true/>")), PropertyList(true));
    EXPECT_EQ(decodePropertyList(doublingFile(2)), PropertyList(Array{Array{true, true}, Array{true, true}}));
}

TEST(DamagedPropertyListTest, EveryTruncationReadsAsNothing) {
    for (std::size_t size = 0; size < sample.size(); ++size)
        EXPECT_FALSE(decodePropertyList(std::string_view(sample).substr(0, size))) << size;
    const std::string xml =
        xmlFile("<dict><key>a</key><array><string>b</string><data>AQI=</data></array></dict>");
    ASSERT_TRUE(decodePropertyList(xml));
    for (std::size_t size = 0; size < xml.size(); ++size)
        EXPECT_FALSE(decodePropertyList(std::string_view(xml).substr(0, size))) << size;
}

TEST(DamagedPropertyListTest, AnyByteChangedReadsAsNothingOrAsSomethingThatCanBeKept) {
    for (std::size_t position = 0; position < sample.size(); ++position) {
        for (unsigned change = 1; change < 256; ++change) {
            auto damaged = sample;
            damaged[position] = static_cast<char>(static_cast<unsigned char>(damaged[position]) ^ change);
            const auto value = decodePropertyList(damaged);
            const bool canBeKept =
                !value || encodePropertyList(*value, PropertyListFormat::Binary).has_value();
            ASSERT_TRUE(canBeKept) << position << ' ' << change;
        }
    }
}

TEST(DamagedPropertyListTest, CollectionsThatContainThemselvesReadAsNothing) {
    EXPECT_FALSE(decodePropertyList(binaryFile({"\xA1\x00"s})));
    EXPECT_FALSE(decodePropertyList(binaryFile({"\xA1\x01"s, "\xA1\x02"s, "\xA1\x01"s})));
    EXPECT_FALSE(decodePropertyList(binaryFile({"\xD1\x01\x00"s, "\x51"
                                                                 "a"s})));
}

TEST(DamagedPropertyListTest, HugeCountsReadAsNothing) {
    for (const auto* const marker : {"\x4F", "\x5F", "\x6F", "\xAF", "\xDF"})
        for (const std::uint64_t count :
             {std::uint64_t{5}, std::uint64_t{1} << 60U, ~std::uint64_t{0}, ~std::uint64_t{0} / 2 + 1})
            EXPECT_FALSE(decodePropertyList(binaryFile({marker + "\x13"s + bigEndian(count, 8)}))) << count;
}

TEST(DamagedPropertyListTest, TrailersThatPointOutsideTheFileReadAsNothing) {
    const std::string good = binaryFile({"\x09"});
    for (const std::size_t field : {8U, 16U, 24U}) {
        for (const std::uint64_t value : {std::uint64_t{1} << 32U, ~std::uint64_t{0}}) {
            auto damaged = good;
            damaged.replace(good.size() - 32 + field, 8, bigEndian(value, 8));
            EXPECT_FALSE(decodePropertyList(damaged)) << field;
        }
    }
    for (const std::size_t field : {6U, 7U}) {
        for (const char size : {'\0', '\5', '\x10', '\xFF'}) {
            auto damaged = good;
            damaged[good.size() - 32 + field] = size;
            EXPECT_FALSE(decodePropertyList(damaged)) << field;
        }
    }
}

TEST(DamagedPropertyListTest, DeepBinaryNestingReadsAsNothing) {
    for (const int depth : {129, 100'000}) {
        std::vector<std::string> objects;
        for (int i = 1; i <= depth; ++i)
            objects.push_back('\xA1' + bigEndian(static_cast<std::uint64_t>(i), 4));
        objects.emplace_back("\x09");
        EXPECT_FALSE(decodePropertyList(binaryFile(objects, 4))) << depth;
    }
}

TEST(DamagedPropertyListTest, NestingCountsAlsoThroughAnObjectThatWasReachedAtLesserDepthBefore) {
    const auto chainOf = [](unsigned length) {
        std::vector<std::string> objects{
            "\xA2\x40\x01"s}; // the chain from its 64th array on, and the whole of it
        for (unsigned i = 2; i <= length; ++i)
            objects.push_back('\xA1' + bigEndian(i, 1));
        objects.emplace_back("\xA0");
        return binaryFile(objects);
    };
    EXPECT_TRUE(decodePropertyList(chainOf(127)));
    EXPECT_FALSE(decodePropertyList(chainOf(128)));
}

TEST(DamagedPropertyListTest, DeepXMLNestingReadsAsNothing) {
    for (const int depth : {129, 1'000'000}) {
        EXPECT_FALSE(decodePropertyList(xmlFile(repeated("<array>", depth) + repeated("</array>", depth))))
            << depth;
        EXPECT_FALSE(decodePropertyList(xmlFile(repeated("<array>", depth)))) << depth;
    }
}

TEST(DamagedPropertyListTest, ATreeThatGrowsByDoublingReadsAsNothingAtOnce) {
    ASSERT_TRUE(decodePropertyList(doublingFile(10)));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(decodePropertyList(doublingFile(40)));
    EXPECT_FALSE(decodePropertyList(doublingFile(120)));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(DamagedPropertyListTest, ALargeTextThatIsReferredToOftenReadsAsNothing) {
    const std::string text = "\x5F\x12" + bigEndian(1'000'000, 4) + std::string(1'000'000, 'x');
    EXPECT_TRUE(decodePropertyList(binaryFile({"\xA2\x01\x01", text})));
    EXPECT_FALSE(decodePropertyList(binaryFile({"\xAF\x10\x64" + std::string(100, '\1'), text})));
}

TEST(DamagedPropertyListTest, EntitiesOfADocumentTypeReadAsNothing) {
    EXPECT_FALSE(decodePropertyList("<!DOCTYPE plist [<!ENTITY a \"aaa\"><!ENTITY b \"&a;&a;\">]>"
                                    "<plist version=\"1.0\"><string>&b;</string></plist>"));
    EXPECT_FALSE(decodePropertyList(xmlFile("<string>&unknown;</string>")));
}

TEST(DamagedPropertyListTest, TextThatIsNoTextReadsAsNothing) {
    for (const auto& text :
         {"\x61\xD8\x00"s, "\x61\xDC\x00"s, "\x62\xD8\x00\x00\x61"s, "\x62\xDC\x00\xD8\x00"s,
          "\x62\xD8\x00\xD8\x00"s, "\x61\x00\x00"s, "\x51\x80"s, "\x51\x00"s}) {
        EXPECT_FALSE(decodePropertyList(binaryFile({text})));
        EXPECT_FALSE(decodePropertyList(binaryFile({"\xD1\x01\x02"s, text, "\x09"s})));
    }
    for (const auto& text : {"\xFF"s, "\xED\xA0\x80"s, "&#xD800;"s, "&#0;"s, "&#x0;"s, "a\0b"s}) {
        EXPECT_FALSE(decodePropertyList(xmlFile("<string>" + text + "</string>")));
        EXPECT_FALSE(decodePropertyList(xmlFile("<dict><key>" + text + "</key><true/></dict>")));
    }
}

TEST(DamagedPropertyListTest, KindsThatAPropertyListDoesNotHaveReadAsNothing) {
    for (const auto& object :
         {"\x00"s, "\x0F"s, "\x80\x05"s, "\xC0"s, "\xB0"s, "\x70"s, "\x15"s + std::string(32, '\0'),
          "\x21\x00\x00"s, "\x32\x00\x00\x00\x00"s, "\x14" + bigEndian(1, 8) + bigEndian(5, 8),
          "\x14" + bigEndian(~std::uint64_t{0}, 8) + bigEndian(5, 8)})
        EXPECT_FALSE(decodePropertyList(binaryFile({object})));
    EXPECT_FALSE(decodePropertyList(binaryFile({"\xD1\x01\x01"s, "\x10\x05"s}))) << "a key that is a number";
}

TEST(DamagedPropertyListTest, XMLThatIsNotWellFormedReadsAsNothing) {
    for (const auto* const content :
         {"", "<true/><false/>", "<true>x</true>", "<bogus/>", "text<true/>", "<array><true/></dict>",
          "<dict><key>a</key></dict>", "<dict><string>a</string></dict>",
          "<dict><key>a</key><key>b</key></dict>", "<array><key>a</key></array>", "<key>a</key>",
          "<array a='>'><true/></array>", "</array>", "<array/ >", "<string>a<b/></string>",
          "<string><![CDATA[a</string>"})
        EXPECT_FALSE(decodePropertyList(xmlFile(content))) << content;
    EXPECT_FALSE(decodePropertyList("<string>a</string>"));
    EXPECT_FALSE(decodePropertyList("<plist/>"));
    EXPECT_FALSE(decodePropertyList("<plistx><true/></plist>"));
    EXPECT_FALSE(decodePropertyList(xmlFile("<true/>") + "more"));
    EXPECT_FALSE(decodePropertyList("no property list at all"));
}

TEST(DamagedPropertyListTest, XMLValuesThatAreNotOfTheirKindReadAsNothing) {
    for (const auto* const content :
         {"<integer>abc</integer>", "<integer/>", "<integer>010</integer>", "<integer>1.5</integer>",
          "<integer>18446744073709551616</integer>", "<integer>-9223372036854775809</integer>",
          "<real>x</real>", "<real/>", "<real>1e5000</real>", "<date>x</date>", "<date/>",
          "<date>2001-13-01T00:00:00Z</date>", "<date>2001-01-01</date>", "<data>!!!!</data>",
          "<data>AAA</data>", "<data>A=AA</data>"})
        EXPECT_FALSE(decodePropertyList(xmlFile(content))) << content;
}

TEST(DamagedPropertyListTest, XMLWrittenByHandReadsWhole) {
    const auto value =
        decodePropertyList("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!DOCTYPE plist PUBLIC \"x\" \"y\">\n"
                           "<!-- <array> -->\n<plist version=\"1.0\">\n <array >\n"
                           "  <string>a &lt;&#x20AC;<![CDATA[<&>]]></string> <string/>\n"
                           "  <integer> -5 </integer> <true></true> <false />\n"
                           "  <data>\n\tYWJj\n</data> <!-- --> <dict/>\n"
                           " </array>\n</plist>\n<!-- end -->\n");
    const Array expected{"a <\xE2\x82\xAC<&>",         "",          -5, true, false,
                         NSData::dataWithBytes("abc"), Dictionary()};
    EXPECT_EQ(value, PropertyList(expected));
}

TEST(DamagedPropertyListTest, OfTwoValuesForOneKeyTheLaterCounts) {
    const PropertyList expected = Dictionary{{"a", 6}};
    EXPECT_EQ(decodePropertyList(binaryFile({"\xD2\x01\x01\x02\x03"s,
                                             "\x51"
                                             "a"s,
                                             "\x10\x05"s, "\x10\x06"s})),
              expected);
    EXPECT_EQ(decodePropertyList(
                  xmlFile("<dict><key>a</key><integer>5</integer><key>a</key><integer>6</integer></dict>")),
              expected);
}

TEST(DamagedPropertyListTest, NothingIsPrintedAboutDamage) {
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    EXPECT_FALSE(decodePropertyList(binaryFile({"\xA1\x00"s})));
    EXPECT_FALSE(decodePropertyList(xmlFile("<string>&unknown;</string>")));
    EXPECT_FALSE(decodePropertyList(xmlFile("<dict><key/><true/></dict>")));
    EXPECT_FALSE(decodePropertyList("bplist00"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}
