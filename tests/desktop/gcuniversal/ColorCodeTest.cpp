#include "ColorCode.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::string rewritten(std::string_view text) {
    const auto color = colorFromCode(text);
    return color ? codeOfColor(*color) : "none";
}

} // namespace

TEST(ColorCodeTest, ReadsEveryForm) {
    const std::vector<std::pair<std::string_view, std::string_view>> table{
        {"f00", "ff0000ff"},       {"#0f08", "00ff0088"},     {"123456", "123456ff"},
        {"#12345678", "12345678"}, {"ABCDEF", "abcdefff"},    {"ff0000:0.5", "ff000080"},
        {"ff0000:0", "ff000000"},  {"#ff0000:1", "ff0000ff"},
    };
    for (const auto& [text, hex] : table)
        EXPECT_EQ(rewritten(text), hex) << text;
}

TEST(ColorCodeTest, RefusesWhatIsNoColour) {
    for (const auto* const text : {"", "#", "ff", "fffff", "fffffff", "fffffffff", "ggg", "ff0000:",
                                   "ff0000:2", "ff0000:x", "fff:0.5", "##fff", "-ff", "ff ", "ff0000:nan"})
        EXPECT_EQ(rewritten(text), "none") << text;
}

TEST(ColorCodeTest, KeepsWithinItsRange) {
    EXPECT_EQ(codeOfColor({.red = -1, .green = 2, .blue = 0.5, .alpha = 1}), "00ff80ff");
}
