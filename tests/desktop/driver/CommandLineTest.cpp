#include "CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Words = std::vector<CommandLine::Word>;

/// All words of a line; what is wrong with it is the last word of `error`.
std::expected<Words, std::string> split(std::string_view text) {
    CommandLine line(text);
    Words words;
    while (true) {
        auto word = line.next();
        if (!word)
            return std::unexpected(word.error());
        if (!*word)
            return words;
        words.push_back(**word);
    }
}

struct Splitting {
    const char* line;
    Words words;
};

class SplitLine : public testing::TestWithParam<Splitting> {};

TEST_P(SplitLine, GivesTheWords) {
    const auto words = split(GetParam().line);
    ASSERT_TRUE(words) << words.error();
    EXPECT_EQ(*words, GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, SplitLine,
    testing::Values(Splitting{"", {}}, Splitting{" \t ", {}}, Splitting{"quit", {{"quit"}}},
                    Splitting{"  tap\tApply   #2 ", {{"tap"}, {"Apply"}, {"#2"}}},
                    Splitting{R"(tap "Reset Settings" "#2")",
                              {{"tap"}, {"Reset Settings", true}, {"#2", true}}},
                    Splitting{R"("")", {{"", true}}},
                    Splitting{R"("say \"hi\" \\ \n\t\/\u00e9")", {{"say \"hi\" \\ \n\t/\u00e9", true}}},
                    Splitting{R"("\ud83d\ude00")", {{"\U0001F600", true}}},
                    Splitting{"\"Z\u00fcrich \u2013 \U0001F600\"", {{"Z\u00fcrich \u2013 \U0001F600", true}}},
                    Splitting{R"(a"b c\n)", {{"a\"b"}, {"c\\n"}}},
                    Splitting{"don't 'a b'", {{"don't"}, {"'a"}, {"b'"}}},
                    Splitting{"\u00a0a\u00a0b", {{"\u00a0a\u00a0b"}}}));

class BadLine : public testing::TestWithParam<const char*> {};

TEST_P(BadLine, IsRefused) {
    const auto words = split(GetParam());
    ASSERT_FALSE(words);
    EXPECT_TRUE(words.error().starts_with("a quoted word ")) << words.error();
}

INSTANTIATE_TEST_SUITE_P(Lines, BadLine,
                         testing::Values(R"(")", R"("\)", R"(")", R"(tap "Apply)", R"("a"b)", R"("a""b")",
                                         R"("\u12")", R"("\")"));

TEST(CommandLine, LeavesTheRestAsItStands) {
    CommandLine line("set  row-1   {\"a b\":  [1, \"x\\n\"]}  ");
    EXPECT_EQ(line.next(), CommandLine::Word{"set"});
    EXPECT_EQ(line.next(), CommandLine::Word{"row-1"});
    EXPECT_EQ(line.rest(), "{\"a b\":  [1, \"x\\n\"]}");
}

TEST(CommandLine, LeavesNothingAfterTheLastWord) {
    CommandLine line("quit ");
    EXPECT_EQ(line.next(), CommandLine::Word{"quit"});
    EXPECT_EQ(line.rest(), "");
    EXPECT_EQ(line.next(), std::nullopt);
}

TEST(CommandLine, HoldsLongWords) {
    const std::string longWord(1'000'000, 'x');
    CommandLine line(longWord);
    EXPECT_EQ(line.next(), CommandLine::Word{longWord});
}

} // namespace
