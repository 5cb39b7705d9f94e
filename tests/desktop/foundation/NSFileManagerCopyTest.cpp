#include "LowerLimit.h"
#include "Meanwhile.h"
#include "NSFileManagerFixture.h"
#include "WithoutPrivileges.h"

#include <sys/stat.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

class NSFileManagerCopyTest : public NSFileManagerFixture {
protected:
    /// Sets when a thing was used and changed last.
    void setTimes(std::string_view path, time_t used, time_t changed) const {
        const std::array<timespec, 2> times{timespec{.tv_sec = used, .tv_nsec = 1},
                                            timespec{.tv_sec = changed, .tv_nsec = 123456789}};
        ASSERT_EQ(utimensat(AT_FDCWD, device.hostPath(path).c_str(), times.data(), AT_SYMLINK_NOFOLLOW), 0);
    }

    /// Expects the mode and the time of change that `setMode` and `setTimes` gave.
    void expectModeAndTime(std::string_view path, mode_t mode, time_t changed) const {
        const auto status = statusOf(path);
        EXPECT_EQ(status.st_mode & 07777U, mode) << path;
        EXPECT_EQ(status.st_mtim.tv_sec, changed) << path;
        EXPECT_EQ(status.st_mtim.tv_nsec, 123456789) << path;
    }
};

} // namespace

TEST_F(NSFileManagerCopyTest, CopiesAFileWithModeAndTime) {
    const auto content = std::string(300000, 'x') + "end";
    device.write("/file", content);
    setMode("/file", 0640);
    setTimes("/file", 1000, 2000);
    ASSERT_TRUE(manager.copyItemAtPath("/file", "/copy").has_value());
    EXPECT_EQ(device.read("/copy"), content);
    expectModeAndTime("/copy", 0640, 2000);
    EXPECT_EQ(device.read("/file"), content);
}

TEST_F(NSFileManagerCopyTest, TheCopyLendsNobodyTheRightsOfWhoMadeIt) {
    device.write("/file", "");
    setMode("/file", 06755);
    ASSERT_TRUE(manager.copyItemAtPath("/file", "/copy").has_value());
    EXPECT_EQ(statusOf("/copy").st_mode & 07777U, 0755U);
}

TEST_F(NSFileManagerCopyTest, CopiesAFileThatCannotBeWritten) {
    device.write("/file", "text");
    setMode("/file", 0444);
    ASSERT_TRUE(manager.copyItemAtPath("/file", "/copy").has_value());
    EXPECT_EQ(device.read("/copy"), "text");
    EXPECT_EQ(statusOf("/copy").st_mode & 07777U, 0444U);
}

TEST_F(NSFileManagerCopyTest, CopiesALinkAsALink) {
    link("/missing", "/link");
    setTimes("/link", 1000, 2000);
    ASSERT_TRUE(manager.copyItemAtPath("/link", "/copy").has_value());
    EXPECT_EQ(std::filesystem::read_symlink(device.hostPath("/copy")), "/missing");
    EXPECT_EQ(statusOf("/copy").st_mtim.tv_sec, 2000);
}

TEST_F(NSFileManagerCopyTest, CopiesAFolderWithAllThatIsInIt) {
    device.write("/folder/a/b/file", "deep");
    device.write("/folder/new\nline", "strange");
    device.write("/folder/" + std::string(NAME_MAX, 'n'), "long");
    makeFolder("/folder/empty");
    link("a/b", "/folder/link");
    ASSERT_TRUE(manager.copyItemAtPath("/folder", "/copy").has_value());
    auto expected = manager.enumeratorAtPath("/folder");
    auto copied = manager.enumeratorAtPath("/copy");
    std::ranges::sort(expected);
    std::ranges::sort(copied);
    EXPECT_EQ(copied, expected);
    EXPECT_EQ(device.read("/copy/a/b/file"), "deep");
    EXPECT_EQ(std::filesystem::read_symlink(device.hostPath("/copy/link")), "a/b");
}

TEST_F(NSFileManagerCopyTest, CopiesTheModesAndTimesOfFolders) {
    device.write("/folder/inner/file", "");
    setMode("/folder", 0555);
    setMode("/folder/inner", 01777);
    setTimes("/folder/inner", 1000, 2000);
    setTimes("/folder", 1000, 3000);
    ASSERT_TRUE(manager.copyItemAtPath("/folder", "/copy").has_value());
    expectModeAndTime("/copy/inner", 01777, 2000);
    expectModeAndTime("/copy", 0555, 3000);
}

TEST_F(NSFileManagerCopyTest, LinksToTheOutsideAreCopiedAndNotFollowed) {
    std::ofstream(outside.path() + "/file") << "outside";
    makeFolder("/folder");
    link(outside.path(), "/folder/link");
    ASSERT_TRUE(manager.copyItemAtPath("/folder", "/copy").has_value());
    EXPECT_EQ(std::filesystem::read_symlink(device.hostPath("/copy/link")), outside.path());
    EXPECT_EQ(manager.enumeratorAtPath("/copy"), std::vector<std::string>{"link"});
}

TEST_F(NSFileManagerCopyTest, CopiesATreeThatIsDeeperThanAPathCanBeAndThanFilesCanBeOpen) {
    makeFolder("/folder");
    ASSERT_NO_FATAL_FAILURE(makeDeepTree("/folder", std::string(20, 'd'), 300));
    const LowerLimit openFiles(RLIMIT_NOFILE, 160);
    ASSERT_TRUE(manager.copyItemAtPath("/folder", "/copy").has_value());
    EXPECT_EQ(manager.enumeratorAtPath("/copy").size(), 300U);
    EXPECT_TRUE(manager.removeItemAtPath("/folder").has_value());
    EXPECT_TRUE(manager.removeItemAtPath("/copy").has_value());
}

TEST_F(NSFileManagerCopyTest, AFolderCopiedIntoItselfDoesNotHoldItsOwnCopy) {
    device.write("/folder/file", "text");
    makeFolder("/folder/inner");
    ASSERT_TRUE(manager.copyItemAtPath("/folder", "/folder/inner/copy").has_value());
    auto copied = manager.enumeratorAtPath("/folder/inner/copy");
    std::ranges::sort(copied);
    EXPECT_EQ(copied, (std::vector<std::string>{"file", "inner"}));
}

TEST_F(NSFileManagerCopyTest, CopyingAMissingFileFailsWithCode260) {
    expectError(manager.copyItemAtPath("/missing", "/copy"), 260,
                "The file “missing” couldn’t be opened because there is no such file.", ENOENT, "/missing");
    expectError(manager.copyItemAtPath("", "/copy"), 260,
                "The file “” couldn’t be opened because there is no such file.", ENOENT, "");
    EXPECT_FALSE(isThere("/copy"));
}

TEST_F(NSFileManagerCopyTest, CopyingOverSomethingFailsWithCode516) {
    device.write("/file", "text");
    device.write("/folder/a/inner", "kept");
    device.write("/to/file", "kept");
    makeFolder("/to/folder");
    link("/missing", "/to/dangling");
    link("/file", "/link");
    for (const std::string original : {"file", "folder", "link"}) {
        for (const std::string there : {"file", "folder", "dangling"}) {
            expectError(manager.copyItemAtPath("/" + original, "/to/" + there), 516,
                        "“" + original +
                            "” couldn’t be copied to “to” because an item with the same name already exists.",
                        EEXIST, "/" + original);
        }
    }
    EXPECT_EQ(device.read("/to/file"), "kept");
    EXPECT_EQ(manager.enumeratorAtPath("/to/folder").size(), 0U);
    EXPECT_FALSE(isThere("/missing"));
}

TEST_F(NSFileManagerCopyTest, CopyingAThingOntoItselfFailsWithCode516) {
    device.write("/file", "text");
    EXPECT_EQ(manager.copyItemAtPath("/file", "/file").error()->code(), 516);
    EXPECT_EQ(manager.copyItemAtPath("/", "/").error()->code(), 516);
    EXPECT_EQ(device.read("/file"), "text");
}

TEST_F(NSFileManagerCopyTest, CopyingToAMissingFolderFailsWithCode4) {
    device.write("/file", "text");
    expectError(manager.copyItemAtPath("/file", "/missing/copy"), 4, "The file “file” doesn’t exist.", ENOENT,
                "/file");
}

TEST_F(NSFileManagerCopyTest, CopyingBelowAFileFailsWithCode512) {
    device.write("/file", "text");
    expectError(manager.copyItemAtPath("/file", "/file/copy"), 512, "“file” couldn’t be copied to “file”.",
                ENOTDIR, "/file");
}

TEST_F(NSFileManagerCopyTest, CopyingWithoutPermissionFailsWithCode513) {
    device.write("/file", "text");
    makeFolder("/locked");
    setMode("/locked", 0555);
    const WithoutPrivileges unprivileged;
    expectError(manager.copyItemAtPath("/file", "/locked/copy"), 513,
                "“file” couldn’t be copied because you don’t have permission to access “locked”.", EACCES,
                "/file");
}

TEST_F(NSFileManagerCopyTest, CopyingAFolderWithSomethingUnreadableInItFails) {
    makeFolder("/to");
    setMode("/to", 0777);
    device.write("/files/secret", "text");
    setMode("/files/secret", 0);
    device.write("/folders/secret/file", "text");
    setMode("/folders/secret", 0);
    const WithoutPrivileges unprivileged;
    EXPECT_EQ(manager.copyItemAtPath("/files", "/to/files").error()->code(), 513);
    EXPECT_EQ(manager.copyItemAtPath("/folders", "/to/folders").error()->code(), 513);
}

TEST_F(NSFileManagerCopyTest, CopyingToATooLongNameFailsWithCode514) {
    device.write("/file", "text");
    expectError(manager.copyItemAtPath("/file", "/" + std::string(NAME_MAX + 1, 'n')), 514,
                "“file” couldn’t be copied to “/” because the file name is invalid.", ENAMETOOLONG, "/file");
}

TEST_F(NSFileManagerCopyTest, CopyingFailsWhenNotAllBytesFit) {
    device.write("/file", std::string(300000, 'x'));
    const LowerLimit fileSize(RLIMIT_FSIZE, 200000);
    expectError(manager.copyItemAtPath("/file", "/copy"), 512, "“file” couldn’t be copied to “/”.", EFBIG,
                "/file");
}

TEST_F(NSFileManagerCopyTest, OtherKindsOfThingsAreNotCopied) {
    makeFolder("/folder");
    makeFifo("/folder/pipe");
    EXPECT_EQ(manager.copyItemAtPath("/folder/pipe", "/copy").error()->code(), 512);
    EXPECT_FALSE(isThere("/copy"));
    EXPECT_EQ(manager.copyItemAtPath("/folder", "/copy").error()->code(), 512);
}

TEST_F(NSFileManagerCopyTest, NothingOutsideIsReadOrMadeWhileFoldersAndLinksChangePlaces) {
    std::ofstream(outside.path() + "/secret") << "outside";
    makeFolder("/tree/folder");
    link(outside.path(), "/tree/other");
    const auto folder = device.hostPath("/tree/folder");
    const auto other = device.hostPath("/tree/other");
    const auto copied = device.hostPath("/copy/folder");
    {
        const Meanwhile exchanging([&] {
            renameat2(AT_FDCWD, folder.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE);
            renameat2(AT_FDCWD, folder.c_str(), AT_FDCWD, copied.c_str(), RENAME_EXCHANGE);
        });
        for (int i = 0; i < 300; ++i) {
            [[maybe_unused]] const auto result = manager.copyItemAtPath("/tree", "/copy");
            for (const auto& path : manager.enumeratorAtPath("/copy"))
                ASSERT_FALSE(path.ends_with("secret")) << path;
            [[maybe_unused]] const auto removed = manager.removeItemAtPath("/copy");
        }
    }
    const std::filesystem::directory_iterator names(outside.path());
    EXPECT_EQ(std::distance(begin(names), end(names)), 1);
}
