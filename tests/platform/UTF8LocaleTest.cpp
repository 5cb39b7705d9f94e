#include "System/UTF8Locale.h"

#include <gtest/gtest.h>

#include <langinfo.h>

#include <clocale>
#include <cstdlib>
#include <string>
#include <thread>

namespace {

/// The process's locale is "C" here, as that of a process is which has never set it.
class UTF8LocaleTest : public testing::Test {
protected:
    UTF8LocaleTest() { std::setlocale(LC_ALL, "C"); }

    ~UTF8LocaleTest() override { std::setlocale(LC_ALL, previous_.c_str()); }

    /// How many bytes the C library takes for one character.
    static int lengthOfFirstCharacter(const std::string& text) {
        return std::mblen(text.c_str(), text.size());
    }

    static constexpr auto smile = "\U0001F600";

private:
    std::string previous_ = std::setlocale(LC_ALL, nullptr);
};

} // namespace

TEST_F(UTF8LocaleTest, WhileItLivesTextsAreUTF8) {
    EXPECT_NE(lengthOfFirstCharacter(smile), 4);
    {
        const UTF8Locale locale;
        EXPECT_EQ(lengthOfFirstCharacter(smile), 4);
        EXPECT_STREQ(nl_langinfo(CODESET), "UTF-8");
    }
    EXPECT_NE(lengthOfFirstCharacter(smile), 4);
}

TEST_F(UTF8LocaleTest, OneWithinAnotherLeavesTheOther) {
    const UTF8Locale outer;
    {
        const UTF8Locale inner;
    }
    EXPECT_EQ(lengthOfFirstCharacter(smile), 4);
}

TEST_F(UTF8LocaleTest, OtherThreadsKeepTheirs) {
    const UTF8Locale locale;
    std::thread([] { EXPECT_NE(lengthOfFirstCharacter(smile), 4); }).join();
}
