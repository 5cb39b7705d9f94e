#include "texts/StringTable.h"

#include <gtest/gtest.h>

#include <string>

using namespace std::string_literals;
using namespace std::string_view_literals;

namespace {

using Texts = StringTable::Texts;

Texts textsOf(std::string_view bytes) {
    const auto table = StringTable::parse(bytes);
    if (table)
        return table->texts();
    ADD_FAILURE() << "line " << table.error().line << ": expected " << table.error().expected;
    return {};
}

/// Where the damage is, and what was expected: "line 3: ...".
std::string damageOf(std::string_view bytes) {
    const auto table = StringTable::parse(bytes);
    return table ? "none" : "line " + std::to_string(table.error().line) + ": " + table.error().expected;
}

/// The text that the escapes in a quoted text stand for.
std::string unescaped(const std::string& escapes) {
    return textsOf("key = \"" + escapes + "\";")["key"];
}

std::string damageInText(const std::string& escapes) {
    return damageOf("\n\"" + escapes + "\";");
}

} // namespace

TEST(StringTableTest, ReadsKeysAndTexts) {
    EXPECT_EQ(textsOf("\"a\" = \"x\";\n\"b c\"=\"y z\";"), (Texts{{"a", "x"}, {"b c", "y z"}}));
}

TEST(StringTableTest, AFileWithoutEntriesIsATableWithoutTexts) {
    for (const auto bytes :
         {""sv, " \t\r\n\v\f"sv, "/* only */ // comments"sv, "\xEF\xBB\xBF"sv, "\xFF\xFE"sv})
        EXPECT_EQ(textsOf(bytes), Texts{});
}

TEST(StringTableTest, AKeyAloneIsItsOwnText) {
    EXPECT_EQ(textsOf("\"a b\"; c ;"), (Texts{{"a b", "a b"}, {"c", "c"}}));
}

TEST(StringTableTest, PlainWordsNeedNoQuotes) {
    EXPECT_EQ(textsOf("a_B.c-9$/: = x//y;"), (Texts{{"a_B.c-9$/:", "x//y"}}));
}

TEST(StringTableTest, SingleQuotesAreQuotesToo) {
    EXPECT_EQ(textsOf(R"('a"b' = "c'd"; 'it\'s' = '';)"), (Texts{{"a\"b", "c'd"}, {"it's", ""}}));
}

TEST(StringTableTest, TextsMayRunOverSeveralLines) {
    EXPECT_EQ(textsOf("a = \"x\n y\";"), (Texts{{"a", "x\n y"}}));
}

TEST(StringTableTest, TheLastOfTextsWithOneKeyCounts) {
    EXPECT_EQ(textsOf("a = x; b = y; a = z;"), (Texts{{"a", "z"}, {"b", "y"}}));
}

TEST(StringTableTest, PassesOverCommentsBetweenTokens) {
    EXPECT_EQ(textsOf("/* \"no\" = \"no\"; */ a /**/ = /* ; */ x // = y;\n ; // end"), (Texts{{"a", "x"}}));
}

TEST(StringTableTest, CommentsDoNotNestAndBeginNowhereInTexts) {
    EXPECT_EQ(textsOf("/* /* */ a = \"/* x */ // y\";"), (Texts{{"a", "/* x */ // y"}}));
    EXPECT_EQ(damageOf("/* /* */ */ a = x;"), "line 1: a key");
}

TEST(StringTableTest, UndoesNamedEscapes) {
    EXPECT_EQ(unescaped(R"(\"\\\n\t\r\'\a\b\f\v)"), "\"\\\n\t\r'\a\b\f\v");
}

TEST(StringTableTest, ABackslashBeforeAnyOtherCharacterIsPassedOver) {
    EXPECT_EQ(unescaped("\\%\\é\\\n\\u"), "%é\nu");
}

TEST(StringTableTest, UndoesUnicodeEscapes) {
    EXPECT_EQ(unescaped(R"(\U0041\U00e9\U20AC0)"), "Aé€0");
    EXPECT_EQ(unescaped(R"(\UD83D\UDE00\uD83D)"), "😀uD83D");
}

TEST(StringTableTest, UndoesOctalEscapesOfUpToThreeDigits) {
    EXPECT_EQ(unescaped(R"(\101\1019\7\18\351\0)"), "AA9\a\0018é\0"s);
}

TEST(StringTableTest, RefusesUnicodeEscapesThatAreNoCharacter) {
    for (const auto* const escapes :
         {R"(\UD83D)", R"(\UDE00\UD83D)", R"(\UD83Dx)", R"(\UD83D\U0041)", R"(\UD83D\n)"})
        EXPECT_EQ(damageInText(escapes), "line 2: both halves of a surrogate pair") << escapes;
    for (const auto* const escapes : {R"(\U)", R"(\U12)", R"(\U12G4)", R"(\U-123)", R"(\UD83D\U12)"})
        EXPECT_EQ(damageInText(escapes), R"(line 2: four hexadecimal digits after "\U")") << escapes;
    EXPECT_EQ(damageOf(R"("\U123)"), R"(line 1: four hexadecimal digits after "\U")");
}

TEST(StringTableTest, RefusesOctalEscapesBeyondAByte) {
    EXPECT_EQ(damageInText(R"(\400)"), R"(line 2: an octal number up to 377 after "\")");
    EXPECT_EQ(unescaped(R"(\377)"), "ÿ");
}

TEST(StringTableTest, SaysWhereAndWhatWasExpected) {
    EXPECT_EQ(damageOf("a = x;\n\n= y;"), "line 3: a key");
    EXPECT_EQ(damageOf("a = x;\nb\n\"c\" = y;"), "line 3: \"=\" or \";\" after a key");
    EXPECT_EQ(damageOf("a"), "line 1: \"=\" or \";\" after a key");
    EXPECT_EQ(damageOf("a = ;"), "line 1: a text after \"=\"");
    EXPECT_EQ(damageOf("a = x\nb = y;"), "line 2: \";\" after a text");
    EXPECT_EQ(damageOf("a = \"x\" \"y\";"), "line 1: \";\" after a text");
    EXPECT_EQ(damageOf("{ a = x; }"), "line 1: a key");
    EXPECT_EQ(damageOf("a = é;"), "line 1: a text after \"=\"");
    EXPECT_EQ(damageOf("a = \"\n\n\"; b"), "line 3: \"=\" or \";\" after a key");
}

TEST(StringTableTest, SaysWhereWhatNeverEndsBegan) {
    EXPECT_EQ(damageOf("a = x;\n\"b\n\n"), "line 2: a closing \" for the text that begins here");
    EXPECT_EQ(damageOf("a = x;\n'b\\'\n"), "line 2: a closing ' for the text that begins here");
    EXPECT_EQ(damageOf("\"b\\"), "line 1: a closing \" for the text that begins here");
    EXPECT_EQ(damageOf("a = x;\n\n/* b\n\n *"), "line 3: \"*/\" at the end of the comment that begins here");
    EXPECT_EQ(damageOf("/*/"), "line 1: \"*/\" at the end of the comment that begins here");
}

TEST(StringTableTest, OneDamageRefusesTheWholeTable) {
    EXPECT_FALSE(StringTable::parse("a = x; b = y; c"));
    EXPECT_TRUE(StringTable::parse("a = x; b = y; c;"));
}

TEST(StringTableTest, RefusesTextThatIsNotUTF8) {
    EXPECT_EQ(damageOf("a = x;\nb = \"\xC3\";"), "line 2: valid UTF-8");
    EXPECT_EQ(damageOf("// \xED\xA0\x80"), "line 1: valid UTF-8");
}

TEST(StringTableTest, ZerosAreCharactersOfTextsAndNothingElse) {
    EXPECT_EQ(textsOf("ab = \"x\0y\";"sv), (Texts{{"ab", "x\0y"s}}));
    EXPECT_EQ(damageOf("ab\0 = x;"sv), "line 1: \"=\" or \";\" after a key");
    EXPECT_FALSE(StringTable::parse(std::string(1'000'000, '\0')));
    EXPECT_FALSE(StringTable::parse(std::string(1'000'001, '\0')));
}

TEST(StringTableTest, ReadsHugeTablesInOneGo) {
    std::string bytes;
    for (int i = 0; i < 50'000; ++i)
        bytes += "\"key" + std::to_string(i) + "\" = \"" + std::string(20, 'x') + "\";\n";
    EXPECT_EQ(textsOf(bytes).size(), 50'000U);
    EXPECT_EQ(damageOf(bytes + "!"), "line 50001: a key");
}

TEST(StringTableTest, RefusesAMegabyteOfOneThing) {
    for (const auto* const piece : {"\"", "'", "/*", "\\", "\"\\", "=", "a;=", "\\U", "{", "<", "(", "a "}) {
        std::string bytes = "a = ";
        while (bytes.size() < 1'000'000)
            bytes += piece;
        EXPECT_FALSE(StringTable::parse(bytes)) << piece;
    }
}

TEST(StringTableTest, ReadsAPropertyListWhoseOtherValuesAreLeftOut) {
    const auto body = R"(<plist version="1.0"><dict><key>a</key><string>x &amp; y</string>
        <key>n</key><integer>1</integer><key>d</key><dict><key>z</key><string>z</string></dict></dict></plist>)"s;
    const auto heading = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"s;
    for (const auto& bytes :
         {body, " \r\n\t" + body, "\xEF\xBB\xBF" + body, heading + body, "<!DOCTYPE plist>" + body})
        EXPECT_EQ(textsOf(bytes), (Texts{{"a", "x & y"}})) << bytes;
}

TEST(StringTableTest, ReadsABinaryPropertyList) {
    const auto bytes =
        "bplist00\xD1\x01\x02\x51\x61\x51x\x08\x0B\x0D\0\0\0\0\0\0\x01\x01\0\0\0\0\0\0\0\x03\0\0\0\0\0\0\0\0"
        "\0\0\0\0\0\0\0\x0F"sv;
    EXPECT_EQ(textsOf(bytes), (Texts{{"a", "x"}}));
}

TEST(StringTableTest, RefusesAPropertyListThatIsDamagedOrNoDictionary) {
    for (const auto bytes : {"bplist00"sv, "<plist><dict><key>a</key>"sv, "<plist><array/></plist>"sv,
                             "<plist><string>a = x;</string></plist>"sv, "<?xml"sv})
        EXPECT_EQ(damageOf(bytes), "line 1: a property list whose value is a dictionary") << bytes;
}
