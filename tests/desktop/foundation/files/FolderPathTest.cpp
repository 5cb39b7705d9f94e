#include "files/FolderPath.h"

#include "TestDevice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fcntl.h>

#include <cerrno>
#include <filesystem>
#include <iterator>
#include <string>

namespace {

constexpr int manyLevels = 200;

std::ptrdiff_t openDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

class FolderPathTest : public testing::Test {
protected:
    void makeAndEnter(const std::string& name) {
        ASSERT_EQ(mkdirat(path.current(), name.c_str(), 0755), 0);
        ASSERT_TRUE(path.enter(name).has_value());
    }

    /// The inode of the folder where the path ends.
    [[nodiscard]] ino_t currentFolder() const {
        struct stat status{};
        EXPECT_EQ(fstat(path.current(), &status), 0);
        return status.st_ino;
    }

    TemporaryFolder folder;
    FileDescriptor start{::open(folder.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)};
    FolderPath path{start.get()};
};

} // namespace

TEST_F(FolderPathTest, LeadsDownAndBackUp) {
    makeAndEnter("a");
    const auto a = currentFolder();
    makeAndEnter("b");
    EXPECT_EQ(path.depth(), 2U);
    EXPECT_EQ(path.name(), "b");
    ASSERT_TRUE(path.leave().has_value());
    EXPECT_EQ(currentFolder(), a);
    ASSERT_TRUE(path.leave().has_value());
    EXPECT_EQ(path.current(), start.get());
}

TEST_F(FolderPathTest, StaysAtItsStartWhenThatIsLeft) {
    ASSERT_TRUE(path.leave().has_value());
    EXPECT_EQ(path.current(), start.get());
}

TEST_F(FolderPathTest, ReturnsToItsStartAtOnce) {
    makeAndEnter("a");
    makeAndEnter("b");
    path.returnToStart();
    EXPECT_EQ(path.depth(), 0U);
    EXPECT_EQ(path.current(), start.get());
}

TEST_F(FolderPathTest, EntersNeitherLinksNorFilesNorWhatIsMissing) {
    ASSERT_EQ(symlinkat("/", start.get(), "link"), 0);
    ASSERT_TRUE(FileDescriptor(openat(start.get(), "file", O_WRONLY | O_CREAT | O_CLOEXEC, 0644)));
    EXPECT_EQ(path.enter("link").error(), ENOTDIR);
    EXPECT_EQ(path.enter("file").error(), ENOTDIR);
    EXPECT_EQ(path.enter("missing").error(), ENOENT);
    EXPECT_EQ(path.depth(), 0U);
}

TEST_F(FolderPathTest, KeepsFewFoldersOpenAndFindsTheOthersAgain) {
    std::vector<ino_t> folders{currentFolder()};
    const auto openBefore = openDescriptors();
    for (int i = 0; i < manyLevels; ++i) {
        ASSERT_NO_FATAL_FAILURE(makeAndEnter("d"));
        folders.push_back(currentFolder());
    }
    EXPECT_LT(openDescriptors() - openBefore, manyLevels / 2);
    for (auto level = folders.rbegin() + 1; level != folders.rend(); ++level) {
        ASSERT_TRUE(path.leave().has_value());
        EXPECT_EQ(currentFolder(), *level);
    }
    EXPECT_EQ(openDescriptors(), openBefore);
}

TEST_F(FolderPathTest, DoesNotFollowALinkThatTookTheWaysPlace) {
    for (int i = 0; i < manyLevels; ++i)
        ASSERT_NO_FATAL_FAILURE(makeAndEnter("d"));
    ASSERT_EQ(renameat(start.get(), "d", start.get(), "moved"), 0);
    ASSERT_EQ(symlinkat("moved", start.get(), "d"), 0);
    std::expected<void, int> left;
    for (int i = 0; i < manyLevels && left; ++i)
        left = path.leave();
    ASSERT_FALSE(left.has_value());
    EXPECT_EQ(left.error(), ENOTDIR);
}
