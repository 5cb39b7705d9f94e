#include "LineReader.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

namespace {

struct FileEnd {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// A stream that holds the text.
class TextStream {
public:
    explicit TextStream(std::string text) : text_(std::move(text)) {}

    [[nodiscard]] std::FILE* stream() const { return file_.get(); }

private:
    std::string text_;
    std::unique_ptr<std::FILE, FileEnd> file_{fmemopen(text_.data(), text_.size(), "r")};
};

TEST(LineReader, ReadsLinesWithEitherEnd) {
    const TextStream text("first\nsecond \r\n\nlast");
    LineReader reader(text.stream());
    EXPECT_EQ(reader.next().value().text, "first");
    EXPECT_EQ(reader.next().value().text, "second ");
    EXPECT_EQ(reader.next().value().text, "");
    EXPECT_EQ(reader.next().value().text, "last");
    EXPECT_FALSE(reader.next());
}

TEST(LineReader, KeepsEveryByte) {
    const TextStream text(std::string("a\0\xff\n", 4));
    LineReader reader(text.stream());
    EXPECT_EQ(reader.next().value().text, std::string("a\0\xff", 3));
}

TEST(LineReader, GoesOnAfterALineThatIsTooLong) {
    const TextStream text(std::string(LineReader::longestLine, 'x') + "\n" +
                          std::string(LineReader::longestLine + 1, 'y') + "\nz\n");
    LineReader reader(text.stream());
    const auto longest = reader.next().value();
    EXPECT_EQ(longest.text.size(), LineReader::longestLine);
    EXPECT_FALSE(longest.tooLong);
    EXPECT_TRUE(reader.next().value().tooLong);
    const auto next = reader.next().value();
    EXPECT_EQ(next.text, "z");
    EXPECT_FALSE(next.tooLong);
}

} // namespace
