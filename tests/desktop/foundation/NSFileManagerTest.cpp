#include "LowerLimit.h"
#include "NSFileManagerFixture.h"
#include "WithoutPrivileges.h"
#include "time/UnixTime.h"

#include <sys/stat.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <ctime>
#include <string>
#include <vector>

namespace {

using NSFileManagerTest = NSFileManagerFixture;

std::vector<std::string> sorted(std::vector<std::string> names) {
    std::ranges::sort(names);
    return names;
}

using Names = std::vector<std::string>;

} // namespace

TEST_F(NSFileManagerTest, IsOneObject) {
    EXPECT_EQ(&NSFileManager::defaultManager(), &manager);
}

TEST_F(NSFileManagerTest, FilesFoldersAndLinksToThemExist) {
    device.write("/folder/file", "");
    link("/folder", "/link");
    EXPECT_TRUE(manager.fileExistsAtPath("/"));
    EXPECT_TRUE(manager.fileExistsAtPath("/folder"));
    EXPECT_TRUE(manager.fileExistsAtPath("/folder/file"));
    EXPECT_TRUE(manager.fileExistsAtPath("/link"));
    EXPECT_TRUE(manager.fileExistsAtPath("/link/file"));
}

TEST_F(NSFileManagerTest, MissingThingsAndLinksToNowhereDoNotExist) {
    link("/missing", "/dangling");
    link(outside.path(), "/escape");
    for (const auto* const path : {"/missing", "/dangling", "/escape", "", "/missing/x"})
        EXPECT_FALSE(manager.fileExistsAtPath(path)) << path;
}

TEST_F(NSFileManagerTest, CreatesAFolderForEverybodyToRead) {
    ASSERT_TRUE(manager.createDirectoryAtPath("/folder/", false).has_value());
    const auto status = statusOf("/folder");
    EXPECT_TRUE(S_ISDIR(status.st_mode));
    EXPECT_EQ(status.st_mode & 0755U, 0755U);
}

TEST_F(NSFileManagerTest, CreatesAFolderWithItsParents) {
    ASSERT_TRUE(manager.createDirectoryAtPath("/a/b//c/", true).has_value());
    EXPECT_TRUE(isThere("/a/b/c"));
    ASSERT_TRUE(manager.createDirectoryAtPath("relative/path", true).has_value());
    EXPECT_TRUE(isThere("/relative/path"));
}

TEST_F(NSFileManagerTest, CreatesTheParentsBehindLinksInside) {
    makeFolder("/real");
    link("/real", "/link");
    ASSERT_TRUE(manager.createDirectoryAtPath("/link/a/../b", true).has_value());
    EXPECT_TRUE(isThere("/real/a"));
    EXPECT_TRUE(isThere("/real/b"));
}

TEST_F(NSFileManagerTest, CreatingAnExistingFolderWithIntermediatesSucceeds) {
    makeFolder("/folder");
    link("/folder", "/link");
    EXPECT_TRUE(manager.createDirectoryAtPath("/folder", true).has_value());
    EXPECT_TRUE(manager.createDirectoryAtPath("/link", true).has_value());
    EXPECT_TRUE(manager.createDirectoryAtPath("/", true).has_value());
}

TEST_F(NSFileManagerTest, CreatingAnExistingFolderWithoutIntermediatesFailsWithCode516) {
    makeFolder("/parent/folder");
    expectError(
        manager.createDirectoryAtPath("/parent/folder", false), 516,
        "The file “folder” couldn’t be saved in the folder “parent” because a file with the same name "
        "already exists.",
        EEXIST, "/parent/folder");
}

TEST_F(NSFileManagerTest, CreatingAFolderOverAFileFailsWithCode516) {
    device.write("/file", "text");
    link("/file", "/link");
    link("/missing", "/dangling");
    for (const bool withIntermediates : {false, true}) {
        for (const std::string name : {"file", "link", "dangling"}) {
            expectError(manager.createDirectoryAtPath("/" + name, withIntermediates), 516,
                        "The file “" + name +
                            "” couldn’t be saved in the folder “/” because a file with the same name already "
                            "exists.",
                        EEXIST, "/" + name);
        }
    }
    EXPECT_EQ(device.read("/file"), "text");
}

TEST_F(NSFileManagerTest, CreatingAFolderInAMissingOneFailsWithCode4) {
    expectError(manager.createDirectoryAtPath("/missing/folder", false), 4,
                "The folder “folder” doesn’t exist.", ENOENT, "/missing/folder");
    EXPECT_FALSE(isThere("/missing"));
}

TEST_F(NSFileManagerTest, CreatingAFolderBelowAFileFails) {
    device.write("/file", "");
    for (const bool withIntermediates : {false, true})
        EXPECT_FALSE(manager.createDirectoryAtPath("/file/folder", withIntermediates).has_value());
}

TEST_F(NSFileManagerTest, CreatingAFolderWithoutPermissionFailsWithCode513) {
    makeFolder("/locked");
    setMode("/locked", 0555);
    const WithoutPrivileges unprivileged;
    expectError(manager.createDirectoryAtPath("/locked/folder", true), 513,
                "You don’t have permission to save the file “folder” in the folder “locked”.", EACCES,
                "/locked/folder");
}

TEST_F(NSFileManagerTest, CreatingAFolderWithATooLongNameFailsWithCode514) {
    const std::string name(NAME_MAX + 1, 'n');
    expectError(manager.createDirectoryAtPath("/" + name, true), 514,
                "The file “" + name +
                    "” couldn’t be saved in the folder “/” because the file name is invalid.",
                ENAMETOOLONG, "/" + name);
    EXPECT_TRUE(manager.createDirectoryAtPath("/" + std::string(NAME_MAX, 'n'), true).has_value());
}

TEST_F(NSFileManagerTest, CreatesAndReplacesAFile) {
    ASSERT_TRUE(manager.createFileAtPath("/file", NSData::dataWithBytes("long content")));
    EXPECT_EQ(device.read("/file"), "long content");
    ASSERT_TRUE(manager.createFileAtPath("/file", NSData::dataWithBytes("short")));
    EXPECT_EQ(device.read("/file"), "short");
    ASSERT_TRUE(manager.createFileAtPath("/file", NSData()));
    EXPECT_EQ(device.read("/file"), "");
}

TEST_F(NSFileManagerTest, CreatesNoFileWhereNoneCanBe) {
    makeFolder("/folder");
    makeFifo("/pipe");
    link(outside.path() + "/file", "/escape");
    for (const auto* const path : {"", "/", "/folder", "/missing/file", "/pipe", "/escape", "/new/"})
        EXPECT_FALSE(manager.createFileAtPath(path, NSData::dataWithBytes("text"))) << path;
    EXPECT_EQ(access((outside.path() + "/file").c_str(), F_OK), -1);
}

TEST_F(NSFileManagerTest, CreatingAFileFailsWhenNotAllBytesFit) {
    const LowerLimit fileSize(RLIMIT_FSIZE, 1000);
    EXPECT_TRUE(manager.createFileAtPath("/fits", NSData::dataWithBytes(std::string(1000, 'x'))));
    EXPECT_FALSE(manager.createFileAtPath("/large", NSData::dataWithBytes(std::string(1001, 'x'))));
}

TEST_F(NSFileManagerTest, ListsTheNamesInAFolder) {
    device.write("/folder/file", "");
    device.write("/folder/.hidden", "");
    makeFolder("/folder/inner/deeper");
    link("/missing", "/folder/dangling");
    link("folder", "/link");
    for (const auto* const path : {"/folder", "/folder/", "/link"}) {
        EXPECT_EQ(sorted(manager.contentsOfDirectoryAtPath(path).value_or(Names{})),
                  (Names{".hidden", "dangling", "file", "inner"}));
    }
}

TEST_F(NSFileManagerTest, ListsAnEmptyFolderAsEmpty) {
    makeFolder("/folder");
    EXPECT_EQ(manager.contentsOfDirectoryAtPath("/folder").value_or(Names{"wrong"}), Names{});
}

TEST_F(NSFileManagerTest, ListsStrangeNamesAsTheyAre) {
    const auto names =
        sorted({"new\nline", "\xFF\xFE", "...", std::string(NAME_MAX, 'n'), "“x”", " ", "\\", "{x}"});
    for (const auto& name : names)
        device.write("/folder/" + name, "");
    EXPECT_EQ(sorted(manager.contentsOfDirectoryAtPath("/folder").value_or(Names{})), names);
    EXPECT_EQ(sorted(manager.enumeratorAtPath("/folder")), names);
}

TEST_F(NSFileManagerTest, ListingAMissingFolderFailsWithCode260) {
    expectError(manager.contentsOfDirectoryAtPath("/missing"), 260, "The folder “missing” doesn’t exist.",
                ENOENT, "/missing");
}

TEST_F(NSFileManagerTest, ListingAFileFailsWithCode256) {
    device.write("/file", "");
    expectError(manager.contentsOfDirectoryAtPath("/file"), 256, "The file “file” couldn’t be opened.",
                ENOTDIR, "/file");
}

TEST_F(NSFileManagerTest, ListingWithoutPermissionFailsWithCode257) {
    makeFolder("/locked");
    setMode("/locked", 0);
    const WithoutPrivileges unprivileged;
    expectError(manager.contentsOfDirectoryAtPath("/locked"), 257,
                "The folder “locked” couldn’t be opened because you don’t have permission to view it.",
                EACCES, "/locked");
}

TEST_F(NSFileManagerTest, EnumeratesEverythingBelowAFolder) {
    device.write("/folder/a/b/file", "");
    device.write("/folder/file", "");
    makeFolder("/folder/empty");
    link("a", "/folder/link");
    link(outside.path(), "/folder/escape");
    link("/folder", "/link");
    for (const auto* const path : {"/folder", "/link"}) {
        EXPECT_EQ(sorted(manager.enumeratorAtPath(path)),
                  (Names{"a", "a/b", "a/b/file", "empty", "escape", "file", "link"}));
    }
}

TEST_F(NSFileManagerTest, EnumeratesAFolderBeforeWhatItHolds) {
    device.write("/folder/a/b/c", "");
    EXPECT_EQ(manager.enumeratorAtPath("/folder"), (Names{"a", "a/b", "a/b/c"}));
}

TEST_F(NSFileManagerTest, EnumeratesNothingWithoutAFolder) {
    device.write("/file", "");
    EXPECT_EQ(manager.enumeratorAtPath("/missing"), Names{});
    EXPECT_EQ(manager.enumeratorAtPath("/file"), Names{});
    EXPECT_EQ(manager.enumeratorAtPath(""), Names{});
}

TEST_F(NSFileManagerTest, EnumerationGoesOnAfterAFolderThatCannotBeRead) {
    for (const auto* const name : {"a", "b", "c"})
        device.write(std::string("/folder/") + name + "/file", "");
    setMode("/folder/b", 0);
    const WithoutPrivileges unprivileged;
    EXPECT_EQ(sorted(manager.enumeratorAtPath("/folder")), (Names{"a", "a/file", "b", "c", "c/file"}));
}

TEST_F(NSFileManagerTest, AttributesTellKindAndSize) {
    device.write("/file", "12345");
    makeFifo("/pipe");
    link("/file", "/link");
    const auto file = manager.attributesOfItemAtPath("/file");
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ(file->fileType, NSFileType::Regular);
    EXPECT_EQ(file->fileSize, 5U);
    EXPECT_EQ(manager.attributesOfItemAtPath("/")->fileType, NSFileType::Directory);
    EXPECT_EQ(manager.attributesOfItemAtPath("/pipe")->fileType, NSFileType::Other);
}

TEST_F(NSFileManagerTest, AttributesOfALinkAreItsOwn) {
    link("/missing", "/dangling");
    const auto attributes = manager.attributesOfItemAtPath("/dangling");
    ASSERT_TRUE(attributes.has_value());
    EXPECT_EQ(attributes->fileType, NSFileType::SymbolicLink);
    EXPECT_EQ(attributes->fileSize, std::string("/missing").size());
}

TEST_F(NSFileManagerTest, AttributesTellWhenItWasMade) {
    device.write("/file", "");
    const double madeAt = unixTimeOf(manager.attributesOfItemAtPath("/file")->fileCreationDate);
    const auto times = std::to_array<timespec>(
        {{.tv_sec = 1000, .tv_nsec = 0}, {.tv_sec = 1234567890, .tv_nsec = 500000000}});
    ASSERT_EQ(utimensat(AT_FDCWD, device.hostPath("/file").c_str(), times.data(), 0), 0);
    const auto attributes = manager.attributesOfItemAtPath("/file");
    ASSERT_TRUE(attributes.has_value());
    EXPECT_NEAR(madeAt, static_cast<double>(std::time(nullptr)), 600);
    const double creation = unixTimeOf(attributes->fileCreationDate);
    EXPECT_TRUE(creation == madeAt || creation == 1234567890.5)
        << creation; // the latter where the host knows none
}

TEST_F(NSFileManagerTest, AttributesOfAMissingThingFailWithCode260) {
    expectError(manager.attributesOfItemAtPath("/missing"), 260,
                "The file “missing” couldn’t be opened because there is no such file.", ENOENT, "/missing");
}

TEST_F(NSFileManagerTest, AttributesWithoutPermissionFailWithCode257) {
    device.write("/locked/file", "");
    setMode("/locked", 0);
    const WithoutPrivileges unprivileged;
    expectError(manager.attributesOfItemAtPath("/locked/file"), 257,
                "The file “file” couldn’t be opened because you don’t have permission to view it.", EACCES,
                "/locked/file");
}

TEST_F(NSFileManagerTest, PathsWithANulByteAreRefusedEverywhere) {
    device.write("/file", "text");
    const std::string path("/file\0", 6);
    EXPECT_FALSE(manager.fileExistsAtPath(path));
    EXPECT_FALSE(manager.createFileAtPath(path, NSData()));
    EXPECT_FALSE(manager.createDirectoryAtPath(path, true).has_value());
    EXPECT_FALSE(manager.removeItemAtPath(path).has_value());
    EXPECT_FALSE(manager.copyItemAtPath(path, "/copy").has_value());
    EXPECT_FALSE(manager.copyItemAtPath("/file", std::string("/copy\0", 6)).has_value());
    EXPECT_FALSE(manager.contentsOfDirectoryAtPath(std::string("/\0", 2)).has_value());
    EXPECT_FALSE(manager.attributesOfItemAtPath(path).has_value());
    EXPECT_EQ(device.read("/file"), "text");
    EXPECT_FALSE(isThere("/copy"));
}

TEST_F(NSFileManagerTest, TheDocumentsFolderIsTheUsers) {
    EXPECT_EQ(NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory::DocumentDirectory),
              Names{"/var/mobile/Documents"});
}

TEST_F(NSFileManagerTest, TheTemporaryFolderExistsAndEndsWithASlash) {
    EXPECT_TRUE(NSTemporaryDirectory().ends_with('/'));
    EXPECT_TRUE(manager.createFileAtPath(NSTemporaryDirectory() + "file", NSData()));
}
