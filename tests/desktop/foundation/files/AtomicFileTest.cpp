#include "files/AtomicFile.h"

#include "TestDevice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

class AtomicFileTest : public testing::Test {
protected:
    [[nodiscard]] std::string path(const std::string& name) const { return temporary_.path() + '/' + name; }

    void write(const std::string& name, const std::string& content) const {
        std::ofstream(path(name)) << content;
    }

    [[nodiscard]] std::string read(const std::string& name) const {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    [[nodiscard]] mode_t modeOf(const std::string& name) const {
        struct stat status{};
        EXPECT_EQ(stat(path(name).c_str(), &status), 0);
        return status.st_mode & 07777U;
    }

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(temporary_.path()))
            result.push_back(entry.path().filename());
        return result;
    }

    TemporaryFolder temporary_;
    FileDescriptor folder_{open(temporary_.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)};
};

} // namespace

TEST_F(AtomicFileTest, ANewFileHoldsTheBytesAndIsTheOwnersOnly) {
    const std::string bytes("a\0b", 3);
    EXPECT_TRUE(AtomicFile::replace(folder_, "new", bytes));
    EXPECT_EQ(read("new"), bytes);
    EXPECT_EQ(modeOf("new"), 0600U);
    EXPECT_EQ(names(), std::vector<std::string>{"new"});
}

TEST_F(AtomicFileTest, AReplacedFileKeepsItsMode) {
    write("file", "old");
    for (const mode_t mode : {0644U, 0400U, 0777U}) {
        ASSERT_EQ(chmod(path("file").c_str(), mode), 0);
        EXPECT_TRUE(AtomicFile::replace(folder_, "file", "new"));
        EXPECT_EQ(modeOf("file"), mode);
    }
    EXPECT_EQ(read("file"), "new");
}

TEST_F(AtomicFileTest, AReaderOfTheOldFileGoesOnReadingIt) {
    write("file", "old");
    std::ifstream reader(path("file"));
    EXPECT_TRUE(AtomicFile::replace(folder_, "file", "new"));
    std::string word;
    reader >> word;
    EXPECT_EQ(word, "old");
}

TEST_F(AtomicFileTest, ALinkIsReplacedAndNotWhatItLeadsTo) {
    write("target", "old");
    std::filesystem::create_symlink("target", path("link"));
    EXPECT_TRUE(AtomicFile::replace(folder_, "link", "new"));
    EXPECT_EQ(read("target"), "old");
    EXPECT_TRUE(std::filesystem::is_regular_file(std::filesystem::symlink_status(path("link"))));
    EXPECT_EQ(read("link"), "new");
}

TEST_F(AtomicFileTest, AFolderIsNotReplacedAndNoTemporaryIsLeft) {
    std::filesystem::create_directory(path("folder"));
    const auto replaced = AtomicFile::replace(folder_, "folder", "new");
    ASSERT_FALSE(replaced);
    EXPECT_EQ(replaced.error(), EISDIR);
    EXPECT_EQ(names(), std::vector<std::string>{"folder"});
}

TEST_F(AtomicFileTest, ATemporaryThatAnotherProcessLeftIsNotTouched) {
    const auto prefix = ".left-" + std::to_string(getpid()) + '-';
    for (int number = 1; number <= 2000; ++number)
        write(prefix + std::to_string(number), "left");
    EXPECT_TRUE(AtomicFile::replace(folder_, "file", "new", ".left-"));
    EXPECT_EQ(read("file"), "new");
    EXPECT_EQ(names().size(), 2001U);
    for (int number = 1; number <= 2000; ++number)
        EXPECT_EQ(read(prefix + std::to_string(number)), "left");
}

TEST_F(AtomicFileTest, AFolderThatIsGoneIsAFailure) {
    std::filesystem::remove_all(temporary_.path());
    const auto replaced = AtomicFile::replace(folder_, "file", "new");
    ASSERT_FALSE(replaced);
    EXPECT_EQ(replaced.error(), ENOENT);
}

TEST_F(AtomicFileTest, ACopyHasTheBytesAndTheModeOfItsOriginal) {
    const std::string bytes(300'000, 'x'); // more than is read at once
    write("original", bytes);
    ASSERT_EQ(chmod(path("original").c_str(), 0640), 0);
    auto original = RegularFile::openOnHost(path("original"));
    ASSERT_TRUE(original);
    ASSERT_TRUE(AtomicFile::makeCopy(folder_, "copy", *original));
    EXPECT_EQ(read("copy"), bytes);
    EXPECT_EQ(modeOf("copy"), 0640U);
    EXPECT_EQ(names().size(), 2U);
}

TEST_F(AtomicFileTest, ACopyTakesNobodysPlace) {
    write("original", "new");
    write("there", "old");
    ASSERT_EQ(symlink("nowhere", path("link").c_str()), 0);
    for (const auto* const name : {"there", "link"}) {
        auto original = RegularFile::openOnHost(path("original"));
        ASSERT_TRUE(original);
        EXPECT_EQ(AtomicFile::makeCopy(folder_, name, *original), std::unexpected(EEXIST)) << name;
    }
    EXPECT_EQ(read("there"), "old");
    EXPECT_EQ(names().size(), 3U);
}

TEST_F(AtomicFileTest, ACopyThatFailsLeavesNothing) {
    write("original", "bytes");
    auto original = RegularFile::openOnHost(path("original"));
    ASSERT_TRUE(original);
    EXPECT_EQ(AtomicFile::makeCopy(folder_, std::string(300, 'n'), *original), std::unexpected(ENAMETOOLONG));
    EXPECT_EQ(names(), std::vector<std::string>{"original"});
}
