#include "Utf16Text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// The byte index of each UTF-16 unit, and of the end.
std::vector<std::size_t> byteIndexesOf(const Utf16Text& text) {
    std::vector<std::size_t> indexes;
    for (qsizetype position = 0; position <= text.string().size(); ++position)
        indexes.push_back(text.byteIndex(position));
    return indexes;
}

std::vector<qsizetype> positionsOf(const Utf16Text& text, std::size_t byteCount) {
    std::vector<qsizetype> positions;
    for (std::size_t index = 0; index <= byteCount; ++index)
        positions.push_back(text.position(index));
    return positions;
}

} // namespace

TEST(Utf16TextTest, CountsUnitsOfEachCharacterInBothForms) {
    const std::string utf8 = "aé€😀b"; // 1, 2, 3, 4 and 1 bytes; the fourth has two units
    const Utf16Text text(utf8);
    EXPECT_EQ(text.string(), QString::fromUtf8("aé€😀b"));
    EXPECT_EQ(byteIndexesOf(text), (std::vector<std::size_t>{0, 1, 3, 6, 6, 10, 11}));
    EXPECT_EQ(positionsOf(text, utf8.size()), (std::vector<qsizetype>{0, 1, 1, 2, 2, 2, 3, 3, 3, 3, 5, 6}));
}

TEST(Utf16TextTest, AnEmptyTextHasOnlyAnEnd) {
    const Utf16Text text("");
    EXPECT_TRUE(text.string().isEmpty());
    EXPECT_EQ(text.byteIndex(0), 0U);
    EXPECT_EQ(text.position(0), 0);
}

TEST(Utf16TextTest, IndexesOutsideTheTextAreItsEnds) {
    const Utf16Text text("né");
    EXPECT_EQ(text.byteIndex(-5), 0U);
    EXPECT_EQ(text.byteIndex(100), 3U);
    EXPECT_EQ(text.position(100), 2);
}

TEST(Utf16TextTest, WhatIsNoUtf8BecomesReplacementsThatHaveIndexes) {
    const Utf16Text text("a\xFF"
                         "b");
    EXPECT_EQ(text.string(), QString(QStringLiteral("a\uFFFDb")));
    EXPECT_EQ(text.byteIndex(2), 2U);
    EXPECT_EQ(text.position(2), 2);
}

TEST(Utf16TextTest, ACharacterThatTheEndCutsIsOneReplacement) {
    const Utf16Text text("a\xE2\x82");
    EXPECT_EQ(text.string(), QString(QStringLiteral("a\uFFFD")));
    EXPECT_EQ(byteIndexesOf(text), (std::vector<std::size_t>{0, 1, 3}));
}

TEST(Utf16TextTest, ANulIsACharacterAsAnyOther) {
    EXPECT_EQ(Utf16Text(std::string_view("a\0b", 3)).string().size(), 3);
}
