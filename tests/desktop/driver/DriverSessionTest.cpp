#include "DriverSession.h"

#include <gtest/gtest.h>

#include <QJsonObject>
#include <array>
#include <cstdio>
#include <memory>
#include <string>

namespace {

struct FileEnd {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, FileEnd>;

class DriverSessionTest : public testing::Test {
protected:
    DriverSessionTest() {
        table_.add(
            {.usage = "hello", .run = [](const auto&) { return Answer(QJsonObject{{"hello", "you"}}); }});
    }

    /// What is written for an input.
    [[nodiscard]] std::string outputFor(std::string input) {
        const File in(fmemopen(input.data(), input.size(), "r"));
        const File out(std::tmpfile());
        EXPECT_TRUE(session_.run(in.get(), out.get()));
        EXPECT_EQ(std::fseek(out.get(), 0, SEEK_SET), 0);
        std::string text(4096, '\0');
        text.resize(std::fread(text.data(), 1, text.size(), out.get()));
        return text;
    }

    int commandsDone_ = 0;

private:
    CommandTable table_;
    DriverSession session_{table_, [this] { ++commandsDone_; }};
};

TEST_F(DriverSessionTest, AnswersEachLineWithOne) {
    EXPECT_EQ(outputFor("hello\n\nnonsense\nhello"),
              "{\"ok\":true,\"hello\":\"you\"}\n"
              "{\"ok\":false,\"error\":\"the line holds no command\"}\n"
              "{\"ok\":false,\"error\":\"there is no command nonsense\"}\n"
              "{\"ok\":true,\"hello\":\"you\"}\n");
    EXPECT_EQ(commandsDone_, 4);
}

TEST_F(DriverSessionTest, EndsWithQuit) {
    EXPECT_EQ(outputFor("quit\nhello\n"), "{\"ok\":true}\n");
}

TEST_F(DriverSessionTest, GoesOnAfterALineThatIsTooLong) {
    EXPECT_EQ(outputFor(std::string(2 * LineReader::longestLine, 'x') + "\nhello\n"),
              "{\"ok\":false,\"error\":\"the line is longer than 1 MiB\"}\n"
              "{\"ok\":true,\"hello\":\"you\"}\n");
}

TEST_F(DriverSessionTest, SaysWhenAnAnswerCannotBeWritten) {
    CommandTable table;
    DriverSession session(table, [] {});
    std::string input = "quit\n";
    const File in(fmemopen(input.data(), input.size(), "r"));
    const File full(std::fopen("/dev/full", "w"));
    EXPECT_FALSE(session.run(in.get(), full.get()));
}

} // namespace
