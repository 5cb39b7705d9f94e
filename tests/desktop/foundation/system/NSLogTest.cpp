#include "Foundation/NSLog.h"

#include <gtest/gtest.h>

namespace {

/// What logging the line writes to the standard error output.
std::string written(std::string_view line) {
    testing::internal::CaptureStderr();
    logLine(line);
    return testing::internal::GetCapturedStderr();
}

} // namespace

TEST(NSLogTest, WritesTheFormattedLineToTheStandardErrorOutput) {
    testing::internal::CaptureStderr();
    NSLog("Deleting backup: %@ (100%%)", std::string("März"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Deleting backup: März (100%)\n");
}

TEST(NSLogTest, AnEmptyLineIsALine) {
    EXPECT_EQ(written(""), "\n");
}

TEST(NSLogTest, SetsOffWhatFollowsALineBreak) {
    EXPECT_EQ(written("one\ntwo\n\nthree"), "one\n    two\n    \n    three\n");
}

TEST(NSLogTest, SpellsOutWhatCouldFoolATerminal) {
    EXPECT_EQ(written("a\rb\x1B[2Jc\x7F"), "a\\x0Db\\x1B[2Jc\\x7F\n");
}

TEST(NSLogTest, AZeroDoesNotCutTheLine) {
    using namespace std::string_view_literals;
    EXPECT_EQ(written("a\0b"sv), "a\\x00b\n");
}

TEST(NSLogTest, LeavesTabsAndOtherBytesAlone) {
    EXPECT_EQ(written("a\tb\xC3\xA9 \xFF%s%n"), "a\tb\xC3\xA9 \xFF%s%n\n");
}
