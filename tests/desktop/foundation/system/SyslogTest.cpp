#include "Foundation/NSLog.h"

#include <gtest/gtest.h>

#include <syslog.h>

#include <array>
#include <cstdarg>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace {

using Entries = std::vector<std::pair<int, std::string>>;

Entries& entries() {
    static Entries all;
    return all;
}

class SyslogTest : public testing::Test {
protected:
    SyslogTest() { entries().clear(); }
};

} // namespace

// Stands in for the C library's in this program.
// NOLINTNEXTLINE(*-inconsistent-declaration-parameter-name): the C library's names are reserved
extern "C" void syslog(int priority, const char* format, ...) {
    std::array<char, 1024> text{};
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    entries().emplace_back(priority, text.data());
}

TEST_F(SyslogTest, GetsEachLineAsAnEntryOfAUserProgram) {
    NSLog("first");
    NSLog("%@", std::string("second"));
    EXPECT_EQ(entries(), (Entries{{LOG_USER | LOG_NOTICE, "first"}, {LOG_USER | LOG_NOTICE, "second"}}));
}

TEST_F(SyslogTest, TakesConversionsInALineAsText) {
    logLine("%s %n 100%");
    EXPECT_EQ(entries(), (Entries{{LOG_USER | LOG_NOTICE, "%s %n 100%"}}));
}

TEST_F(SyslogTest, ALineBreakBeginsNoEntryOfItsOwn) {
    logLine("one\nNov 16 03:12:00 phone Preferences: two");
    EXPECT_EQ(entries(),
              (Entries{{LOG_USER | LOG_NOTICE, "one\n    Nov 16 03:12:00 phone Preferences: two"}}));
}
