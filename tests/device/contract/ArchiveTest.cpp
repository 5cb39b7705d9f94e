#include "Foundation/NSFileManager.h"
#include "Foundation/NSString.h"
#include "Foundation/NSUUID.h"
#include "Framework.h"
#include "Instances.h"
#include "LibArchive.h"
#include "System/FileSystemRepresentation.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <string>

namespace {

/// The codec over the frameworks' files, with a folder of its own for each test.
class ArchiveTest : public testing::Test {
protected:
    ArchiveTest() { EXPECT_TRUE(files.createDirectoryAtPath(path("packed"), true)); }

    ~ArchiveTest() override { EXPECT_TRUE(files.removeItemAtPath(folder)); }

    [[nodiscard]] std::string path(std::string_view name) const {
        return stringByAppendingPathComponent(folder, name);
    }

    void put(std::string_view name, std::string_view content) {
        ASSERT_TRUE(files.createFileAtPath(path(name), NSData::dataWithBytes(content)));
    }

    /// A file's content, or "missing".
    [[nodiscard]] std::string read(std::string_view name) const {
        const auto data = NSData::dataWithContentsOfFile(path(name));
        return data ? std::string(data->view()) : "missing";
    }

    [[nodiscard]] Result<void> pack() const {
        return LibArchive::createArchiveAtPath(path("archive"), path("packed"));
    }

    [[nodiscard]] Result<void> unpack() const {
        return LibArchive::extractArchiveAtPath(path("archive"), path("unpacked"));
    }

    static void expectError(const Result<void>& result, std::int64_t code, std::string_view text) {
        ASSERT_FALSE(result);
        ASSERT_TRUE(result.error());
        EXPECT_EQ(result.error()->domain(), "com.orvel.corvex");
        EXPECT_EQ(result.error()->code(), code);
        EXPECT_EQ(result.error()->localizedDescription(), text);
    }

    NSFileManager& files = NSFileManager::defaultManager();
    const std::string folder = stringByAppendingPathComponent(NSTemporaryDirectory(), NSUUIDString());
};

} // namespace

TEST_F(ArchiveTest, TheCodecIsAClassOfTheRuntime) {
    auto* const published = objc_getClass("LibArchive");
    ASSERT_NE(published, nullptr);
    EXPECT_STREQ(class_getName(class_getSuperclass(published)), "NSObject");
}

TEST_F(ArchiveTest, AnObjectOfTheCodecsClassIsNothingToThePane) {
    auto* const made = newByName("LibArchive");
    ASSERT_NE(made, nullptr);
    EXPECT_STREQ(class_getName(object_getClass(made)), "LibArchive");
    EXPECT_EQ(dynamic_cast<LibArchive*>(instanceOf(made)), nullptr);
    objc_release(made);
}

TEST_F(ArchiveTest, WhatWasPackedUnpacks) {
    put("packed/preferences.plist", "<plist/>");
    put("packed/.hidden", "");
    put("packed/kCustomImage-IMG", std::string(300000, '\xFE'));
    ASSERT_TRUE(pack());
    ASSERT_TRUE(unpack());
    EXPECT_EQ(read("unpacked/preferences.plist"), "<plist/>");
    EXPECT_EQ(read("unpacked/.hidden"), "");
    EXPECT_EQ(read("unpacked/kCustomImage-IMG"), std::string(300000, '\xFE'));
    EXPECT_EQ(files.enumeratorAtPath(path("unpacked")).size(), 3U);
}

TEST_F(ArchiveTest, AFolderBecomesAFileInWhichNothingCanBe) {
    ASSERT_TRUE(files.createDirectoryAtPath(path("packed/d"), false));
    put("packed/d/x", "inside");
    const auto size = files.attributesOfItemAtPath(path("packed/d"))->fileSize;
    ASSERT_TRUE(pack());
    ASSERT_TRUE(unpack());
    EXPECT_EQ(read("unpacked/d"), std::string(size, '\0'));
    EXPECT_EQ(read("unpacked/d/x"), "missing");
}

TEST_F(ArchiveTest, AMissingFolderGivesAnEmptyArchive) {
    EXPECT_TRUE(LibArchive::createArchiveAtPath(path("archive"), path("missing")));
    EXPECT_TRUE(unpack());
    EXPECT_FALSE(files.fileExistsAtPath(path("unpacked")));
}

TEST_F(ArchiveTest, AFileThatIsThereKeepsItsTail) {
    put("packed/a", "hello");
    ASSERT_TRUE(pack());
    ASSERT_TRUE(files.createDirectoryAtPath(path("unpacked"), false));
    put("unpacked/a", "0123456789");
    ASSERT_TRUE(unpack());
    EXPECT_EQ(read("unpacked/a"), "hello56789");
}

TEST_F(ArchiveTest, AnArchiveThatCannotBeOpenedIsAnError) {
    expectError(LibArchive::createArchiveAtPath(path("missing/archive"), path("packed")), 1,
                "Failed to open archive for writing");
    expectError(unpack(), 2, "Failed to open archive for reading");
    put("archive", std::string(2000, 'x'));
    expectError(unpack(), 2, "Failed to open archive for reading");
    EXPECT_FALSE(files.fileExistsAtPath(path("unpacked")));
}

// The library would take such paths for the standard streams, or for other files.
TEST_F(ArchiveTest, APathThatNamesNoFileIsAnError) {
    put("packed/a", "hello");
    for (const auto& name : {std::string(), path("archive") + std::string(1, '\0') + "rest"}) {
        expectError(LibArchive::createArchiveAtPath(name, path("packed")), 1,
                    "Failed to open archive for writing");
        expectError(LibArchive::extractArchiveAtPath(name, path("unpacked")), 2,
                    "Failed to open archive for reading");
    }
    EXPECT_FALSE(files.fileExistsAtPath(path("archive")));
}

TEST_F(ArchiveTest, NamesAreUTF8WhateverTheProcesssLocaleSays) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    put("packed/\u00E9", "hello");
    EXPECT_TRUE(pack());
    EXPECT_TRUE(unpack());
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(read("unpacked/\u00E9"), "hello");
}

TEST_F(ArchiveTest, AFailureAfterTheOpeningIsNoError) {
    for (const auto* const name : {"packed/1", "packed/2"})
        put(name, std::string(100000, 'x') + NSUUIDString());
    const auto result = LibArchive::createArchiveAtPath("/dev/full", path("packed"));
    ASSERT_FALSE(result);
    EXPECT_FALSE(result.error());
}

TEST_F(ArchiveTest, OtherLibrariesAreGivenAPathAsItStands) {
    const auto reading = FileSystemRepresentation::ofFileForReading(path("\u00E4 b"));
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->c_str(), path("\u00E4 b"));
    const auto writing = FileSystemRepresentation::ofFileForWriting(path("new"));
    ASSERT_TRUE(writing);
    EXPECT_EQ(writing->c_str(), path("new"));
    EXPECT_FALSE(files.fileExistsAtPath(path("new")));
}

TEST_F(ArchiveTest, APathThatNamesNoFileIsGivenToNobody) {
    EXPECT_FALSE(FileSystemRepresentation::ofFileForReading(""));
    EXPECT_FALSE(FileSystemRepresentation::ofFileForWriting(""));
    EXPECT_FALSE(FileSystemRepresentation::ofFileForReading(std::string_view("/a\0b", 4)));
    EXPECT_FALSE(FileSystemRepresentation::ofFileForWriting(std::string_view("/a\0b", 4)));
}
