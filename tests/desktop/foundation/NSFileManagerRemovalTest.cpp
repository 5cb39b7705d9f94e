#include "LowerLimit.h"
#include "Meanwhile.h"
#include "NSFileManagerFixture.h"
#include "WithoutPrivileges.h"
#include "files/FileDescriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

class NSFileManagerRemovalTest : public NSFileManagerFixture {
protected:
    NSFileManagerRemovalTest() { std::ofstream(outside.path() + "/file") << "outside"; }

    void expectTheOutsideUntouched() const {
        std::string content;
        std::ifstream(outside.path() + "/file") >> content;
        EXPECT_EQ(content, "outside");
    }
};

} // namespace

TEST_F(NSFileManagerRemovalTest, RemovesAFile) {
    device.write("/file", "");
    EXPECT_TRUE(manager.removeItemAtPath("/file").has_value());
    EXPECT_FALSE(isThere("/file"));
}

TEST_F(NSFileManagerRemovalTest, RemovesAFolderWithAllThatIsInIt) {
    device.write("/folder/a/b/file", "");
    device.write("/folder/.hidden", "");
    device.write("/folder/new\nline", "");
    device.write("/folder/" + std::string(NAME_MAX, 'n'), "");
    device.write("/folder/\xFF", "");
    makeFifo("/folder/pipe");
    device.write("/beside", "");
    EXPECT_TRUE(manager.removeItemAtPath("/folder/").has_value());
    EXPECT_FALSE(isThere("/folder"));
    EXPECT_TRUE(isThere("/beside"));
}

TEST_F(NSFileManagerRemovalTest, RemovesALinkAndNotWhatItLeadsTo) {
    device.write("/folder/file", "");
    link("/folder", "/link");
    link("/missing", "/dangling");
    EXPECT_TRUE(manager.removeItemAtPath("/link").has_value());
    EXPECT_TRUE(manager.removeItemAtPath("/dangling").has_value());
    EXPECT_FALSE(isThere("/link"));
    EXPECT_FALSE(isThere("/dangling"));
    EXPECT_TRUE(isThere("/folder/file"));
}

TEST_F(NSFileManagerRemovalTest, LinksInAFolderAreNotFollowed) {
    device.write("/kept/file", "");
    makeFolder("/folder");
    link("/kept", "/folder/inside");
    link(outside.path(), "/folder/outside");
    link("../../../..", "/folder/up");
    EXPECT_TRUE(manager.removeItemAtPath("/folder").has_value());
    EXPECT_FALSE(isThere("/folder"));
    EXPECT_TRUE(isThere("/kept/file"));
    expectTheOutsideUntouched();
}

TEST_F(NSFileManagerRemovalTest, RemovesATreeThatIsDeeperThanAPathCanBeAndThanFilesCanBeOpen) {
    makeFolder("/folder");
    ASSERT_NO_FATAL_FAILURE(makeDeepTree("/folder", "d", 2100));
    const LowerLimit openFiles(RLIMIT_NOFILE, 128);
    EXPECT_TRUE(manager.removeItemAtPath("/folder").has_value());
    EXPECT_FALSE(isThere("/folder"));
}

TEST_F(NSFileManagerRemovalTest, RemovingAMissingFileFailsWithCode4) {
    expectError(manager.removeItemAtPath("/missing"), 4, "“missing” couldn’t be removed.", ENOENT,
                "/missing");
    expectError(manager.removeItemAtPath("/missing/x"), 4, "“x” couldn’t be removed.", ENOENT, "/missing/x");
}

TEST_F(NSFileManagerRemovalTest, RemovingWithoutPermissionFailsWithCode513) {
    device.write("/locked/file", "");
    setMode("/locked", 0555);
    const WithoutPrivileges unprivileged;
    expectError(manager.removeItemAtPath("/locked/file"), 513,
                "“file” couldn’t be removed because you don’t have permission to access it.", EACCES,
                "/locked/file");
    EXPECT_TRUE(isThere("/locked/file"));
}

TEST_F(NSFileManagerRemovalTest, RemovingAFolderThatCannotBeReadFailsWithCode513) {
    device.write("/folder/locked/file", "");
    setMode("/folder", 0777);
    setMode("/folder/locked", 0);
    const WithoutPrivileges unprivileged;
    expectError(manager.removeItemAtPath("/folder/locked"), 513,
                "“locked” couldn’t be removed because you don’t have permission to access it.", EACCES,
                "/folder/locked");
}

TEST_F(NSFileManagerRemovalTest, RemovesAnEmptyFolderThatCannotBeRead) {
    makeFolder("/folder/locked");
    setMode("/folder", 0777);
    setMode("/folder/locked", 0);
    const WithoutPrivileges unprivileged;
    EXPECT_TRUE(manager.removeItemAtPath("/folder/locked").has_value());
}

TEST_F(NSFileManagerRemovalTest, TheRootAndFoldersNamedByTheirInsideAreNotRemoved) {
    device.write("/folder/file", "");
    for (const std::string path : {"/", "/..", "/folder/..", "/folder/.", ".", ".."})
        EXPECT_EQ(manager.removeItemAtPath(path).error()->code(), 512) << path;
    EXPECT_TRUE(isThere("/folder/file"));
}

TEST_F(NSFileManagerRemovalTest, RemovingNothingFails) {
    expectError(manager.removeItemAtPath(""), 4, "“” couldn’t be removed.", ENOENT, "");
}

TEST_F(NSFileManagerRemovalTest, NothingOutsideIsRemovedWhileAFolderAndALinkChangePlaces) {
    const auto folder = device.hostPath("/tree/folder");
    const auto other = device.hostPath("/tree/other");
    makeFolder("/tree/folder");
    link(outside.path(), "/tree/other");
    {
        const Meanwhile exchanging(
            [&] { renameat2(AT_FDCWD, folder.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE); });
        for (int i = 0; i < 1000; ++i) {
            [[maybe_unused]] const auto removed = manager.removeItemAtPath("/tree");
            makeFolder("/tree");
            makeFolder("/tree/folder");
            static_cast<void>(symlink(outside.path().c_str(), other.c_str()));
        }
    }
    expectTheOutsideUntouched();
}
