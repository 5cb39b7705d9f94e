#include "texts/StringTableEncoding.h"

#include <gtest/gtest.h>

#include <bit>

using namespace std::string_literals;
using namespace std::string_view_literals;

namespace {

std::string utf16(std::u16string_view text, std::endian order) {
    std::string bytes;
    for (const char16_t unit : text) {
        const auto high = static_cast<char>(unit >> 8U);
        const auto low = static_cast<char>(unit & 0xFFU);
        bytes += order == std::endian::big ? std::string{high, low} : std::string{low, high};
    }
    return bytes;
}

std::string damageOf(std::string_view bytes) {
    const auto text = decodeStringTable(bytes);
    return text ? "none" : "line " + std::to_string(text.error().line) + ": " + text.error().expected;
}

} // namespace

TEST(StringTableEncodingTest, ReadsUTF8WithAndWithoutAMark) {
    EXPECT_EQ(decodeStringTable("é = 😀;\n"), "é = 😀;\n");
    EXPECT_EQ(decodeStringTable("\xEF\xBB\xBFé"), "é");
    EXPECT_EQ(decodeStringTable(""), "");
    EXPECT_EQ(decodeStringTable("a"), "a");
}

TEST(StringTableEncodingTest, ReadsUTF16InBothOrdersWithAndWithoutAMark) {
    for (const auto order : {std::endian::little, std::endian::big}) {
        EXPECT_EQ(decodeStringTable(utf16(u"\uFEFFé\n😀\n", order)), "é\n😀\n");
        EXPECT_EQ(decodeStringTable(utf16(u"a = \"é€\n😀\";", order)), "a = \"é€\n😀\";");
    }
}

TEST(StringTableEncodingTest, RemovesOneMarkOnly) {
    EXPECT_EQ(decodeStringTable("\xEF\xBB\xBF\xEF\xBB\xBF"), "\xEF\xBB\xBF");
    EXPECT_EQ(decodeStringTable(utf16(u"\uFEFF\uFEFF", std::endian::big)), "\xEF\xBB\xBF");
}

TEST(StringTableEncodingTest, AZeroFurtherOnDoesNotMakeItUTF16) {
    EXPECT_EQ(decodeStringTable("ab\0c"sv), "ab\0c"s);
}

TEST(StringTableEncodingTest, SaysTheLineThatIsNotUTF8) {
    EXPECT_EQ(damageOf("\xFF"), "line 1: valid UTF-8");
    EXPECT_EQ(damageOf("a\n\n\xC3\n\xA9"), "line 3: valid UTF-8");
    EXPECT_EQ(damageOf("\xEF\xBB\xBF\n\xE2\x82"), "line 2: valid UTF-8");
}

TEST(StringTableEncodingTest, SaysTheLineThatIsNotUTF16) {
    for (const auto order : {std::endian::little, std::endian::big}) {
        EXPECT_EQ(damageOf(utf16(u"\uFEFFa\n\xD83D\n", order)), "line 2: valid UTF-16");
        EXPECT_EQ(damageOf(utf16(u"\uFEFF\xDE00\xD83D", order)), "line 1: valid UTF-16");
        EXPECT_EQ(damageOf(utf16(u"\uFEFFa\nb", order) + "c"), "line 2: a whole number of UTF-16 units");
    }
}
