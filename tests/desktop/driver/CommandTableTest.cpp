#include "CommandTable.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// A table whose commands answer with the arguments that they were given.
class CommandTableTest : public testing::Test {
protected:
    CommandTableTest() {
        table_.add({.usage = "quit", .run = echo()});
        table_.add({.usage = "tap LABEL [#N]", .fewest = 1, .most = 2, .run = echo()});
        table_.add({.usage = "pick PATH...", .fewest = 1, .most = CommandTable::unlimited, .run = echo()});
        table_.add({.usage = "set ROW-ID JSON", .fewest = 2, .most = 2, .lastIsRest = true, .run = echo()});
        table_.add({.usage = "type TEXT", .fewest = 1, .most = 1, .lastIsRest = true, .run = echo()});
    }

    [[nodiscard]] std::string answerTo(std::string_view line) const { return lineOf(table_.run(line)); }

private:
    static std::function<Answer(const CommandTable::Arguments&)> echo() {
        return [](const CommandTable::Arguments& arguments) {
            std::string text;
            for (const auto& [word, quoted] : arguments)
                text += (quoted ? "<" : "[") + word + (quoted ? ">" : "]");
            return Answer(QJsonObject{{"given", QString::fromStdString(text)}});
        };
    }

    CommandTable table_;
};

TEST_F(CommandTableTest, HandsTheArgumentsOn) {
    EXPECT_EQ(answerTo("quit"), R"({"ok":true,"given":""})");
    EXPECT_EQ(answerTo("tap Apply"), R"({"ok":true,"given":"[Apply]"})");
    EXPECT_EQ(answerTo(R"(tap "A b" #2)"), R"({"ok":true,"given":"<A b>[#2]"})");
    EXPECT_EQ(answerTo(R"(pick /a "/b c" /d)"), R"({"ok":true,"given":"[/a]</b c>[/d]"})");
}

TEST_F(CommandTableTest, HandsTheRestOfALineOnAsItStands) {
    EXPECT_EQ(answerTo(R"(set row {"a":  1})"), R"({"ok":true,"given":"[row][{\"a\":  1}]"})");
    EXPECT_EQ(answerTo("type two  words"), R"({"ok":true,"given":"[two  words]"})");
}

TEST_F(CommandTableTest, SaysHowACommandIsUsed) {
    EXPECT_EQ(answerTo("tap"), R"({"ok":false,"error":"usage: tap LABEL [#N]"})");
    EXPECT_EQ(answerTo("tap a b c"), R"({"ok":false,"error":"usage: tap LABEL [#N]"})");
    EXPECT_EQ(answerTo("quit now"), R"({"ok":false,"error":"usage: quit"})");
    EXPECT_EQ(answerTo("set row"), R"({"ok":false,"error":"usage: set ROW-ID JSON"})");
    EXPECT_EQ(answerTo("type  "), R"({"ok":false,"error":"usage: type TEXT"})");
}

TEST_F(CommandTableTest, RefusesWhatIsNoCommand) {
    EXPECT_EQ(answerTo(""), R"({"ok":false,"error":"the line holds no command"})");
    EXPECT_EQ(answerTo("Quit"), R"({"ok":false,"error":"there is no command Quit"})");
    EXPECT_EQ(answerTo(R"("quit)"), R"({"ok":false,"error":"a quoted word has no closing quote"})");
    EXPECT_EQ(answerTo("quit\xff"), R"({"ok":false,"error":"the line is not text in UTF-8"})");
    EXPECT_EQ(answerTo(std::string_view("quit\0", 5)),
              R"({"ok":false,"error":"the line is not text in UTF-8"})");
}

TEST_F(CommandTableTest, RepeatsOnlyTheBeginningOfALongLine) {
    const auto answer = answerTo(std::string(100'000, 'x'));
    EXPECT_LT(answer.size(), 200U);
    EXPECT_TRUE(answer.contains("xxx...")) << answer;
}

TEST_F(CommandTableTest, CutsTextBetweenCharacters) {
    std::string name = "x";
    for (auto count = 0; count < 100; ++count)
        name += "\u00e9";
    const auto answer = answerTo(name);
    EXPECT_TRUE(answer.contains("\u00e9...\"")) << answer;
}

TEST(Answer, EscapesWhatWouldEndTheLine) {
    EXPECT_EQ(lineOf(std::unexpected("a\nb\r\"\\")), R"({"ok":false,"error":"a\nb\r\"\\"})");
    EXPECT_EQ(lineOf(QJsonObject()), R"({"ok":true})");
}

} // namespace
