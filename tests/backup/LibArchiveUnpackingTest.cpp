#include "GzipBytes.h"
#include "LibArchiveFixture.h"
#include "LowerLimit.h"
#include "TarBytes.h"
#include "WithoutPrivileges.h"

#include <sys/stat.h>

#include <climits>
#include <clocale>
#include <filesystem>

namespace {

/// What becomes of each kind of entry.
class LibArchiveUnpackingTest : public LibArchiveFixture {
protected:
    using LibArchiveFixture::unpack;

    [[nodiscard]] Result<void> unpack(const TarBytes& tar) const { return unpack(gzipped(tar.ended())); }

    /// The same without emptying the folder.
    [[nodiscard]] Result<void> unpackOnto(const TarBytes& tar) const {
        device.write(archivePath, gzipped(tar.ended()));
        return unpack();
    }

    void putUnpacked(const std::string& name, std::string_view content) const {
        device.write(std::string(unpackedPath) + "/" + name, content);
    }

    [[nodiscard]] std::string hostUnpacked() const { return device.hostPath(unpackedPath); }

    const std::string e_acute = "\u00E9";
    const std::string smile = "\U0001F600";
};

} // namespace

TEST_F(LibArchiveUnpackingTest, AFileComesWithTheFoldersThatItIsIn) {
    EXPECT_TRUE(unpack(TarBytes().file("sub/dir/file", "content")));
    EXPECT_EQ(unpacked(), (Tree{{"sub/", ""}, {"sub/dir/", ""}, {"sub/dir/file", "content"}}));
}

TEST_F(LibArchiveUnpackingTest, AFolderByItselfMakesNothing) {
    EXPECT_TRUE(unpack(TarBytes().entry('5', "emptydir/")));
    EXPECT_EQ(unpacked(), Tree());
}

TEST_F(LibArchiveUnpackingTest, OfAFolderInAnotherTheOtherAloneIsMade) {
    EXPECT_TRUE(unpack(TarBytes().entry('5', "outer/inner/")));
    EXPECT_EQ(unpacked(), (Tree{{"outer/", ""}}));
}

TEST_F(LibArchiveUnpackingTest, TheFolderToUnpackIntoIsMadeWithTheFirstEntry) {
    const auto deep = std::string(unpackedPath) + "/not/there";
    device.write(archivePath, gzipped(TarBytes().file("a", "hello").ended()));
    EXPECT_TRUE(LibArchive::extractArchiveAtPath(archivePath, deep));
    EXPECT_EQ(treeAt(deep), (Tree{{"a", "hello"}}));
}

TEST_F(LibArchiveUnpackingTest, AnEmptyArchiveMakesNoFolderToUnpackInto) {
    device.write(archivePath, gzipped(TarBytes().ended()));
    EXPECT_TRUE(LibArchive::extractArchiveAtPath(archivePath, std::string(unpackedPath) + "/new"));
    EXPECT_EQ(unpacked(), Tree());
}

TEST_F(LibArchiveUnpackingTest, AnEmptyFileIsMade) {
    EXPECT_TRUE(unpack(TarBytes().file("empty", "")));
    EXPECT_EQ(unpacked(), (Tree{{"empty", ""}}));
}

TEST_F(LibArchiveUnpackingTest, OfLinksNothingIsMadeButTheFolderThatTheyWouldBeIn) {
    EXPECT_TRUE(unpack(TarBytes()
                           .file("file", "content")
                           .entry('2', "soft/link", "", "../file")
                           .entry('1', "hard/link", "", "file")
                           .file("last", "l")));
    EXPECT_EQ(unpacked(), (Tree{{"file", "content"}, {"soft/", ""}, {"hard/", ""}, {"last", "l"}}));
}

TEST_F(LibArchiveUnpackingTest, OfDevicesAndPipesNothingIsMade) {
    EXPECT_TRUE(
        unpack(TarBytes().entry('3', "character").entry('4', "block").entry('6', "pipe").file("last", "l")));
    EXPECT_EQ(unpacked(), (Tree{{"last", "l"}}));
}

TEST_F(LibArchiveUnpackingTest, ALongerFileThatIsThereKeepsItsTail) {
    putUnpacked("a", "0123456789");
    EXPECT_TRUE(unpackOnto(TarBytes().file("a", "hello")));
    EXPECT_EQ(unpacked(), (Tree{{"a", "hello56789"}}));
}

TEST_F(LibArchiveUnpackingTest, AShorterFileThatIsThereIsWrittenOver) {
    putUnpacked("a", "012");
    EXPECT_TRUE(unpackOnto(TarBytes().file("a", "hello")));
    EXPECT_EQ(unpacked(), (Tree{{"a", "hello"}}));
}

TEST_F(LibArchiveUnpackingTest, TheSecondEntryOfANameIsWrittenOverTheFirst) {
    EXPECT_TRUE(unpack(TarBytes().file("a", "first one").file("a", "second")));
    EXPECT_EQ(unpacked(), (Tree{{"a", "secondone"}}));
}

TEST_F(LibArchiveUnpackingTest, WhereAFolderIsNoFileComesToBeAndTheOthersDo) {
    putUnpacked("a/inside", "kept");
    EXPECT_TRUE(unpackOnto(TarBytes().file("a", std::string(100000, 'x')).file("b", "after")));
    EXPECT_EQ(unpacked(), (Tree{{"a/", ""}, {"a/inside", "kept"}, {"b", "after"}}));
}

TEST_F(LibArchiveUnpackingTest, WhereAFileIsNoFolderComesToBeAndTheOthersDo) {
    putUnpacked("a", "kept");
    EXPECT_TRUE(unpackOnto(TarBytes().file("a/b/c", std::string(100000, 'x')).file("d", "after")));
    EXPECT_EQ(unpacked(), (Tree{{"a", "kept"}, {"d", "after"}}));
}

TEST_F(LibArchiveUnpackingTest, WhatMustNotBeWrittenStaysAndTheOthersAreWritten) {
    putUnpacked("closed", "kept");
    ASSERT_EQ(chmod((hostUnpacked() + "/closed").c_str(), 0444), 0);
    ASSERT_EQ(chmod(hostUnpacked().c_str(), 0777), 0);
    device.write(archivePath, gzipped(TarBytes().file("closed", "other").file("open", "after").ended()));
    {
        const WithoutPrivileges nobody;
        EXPECT_TRUE(unpack());
    }
    EXPECT_EQ(unpacked(), (Tree{{"closed", "kept"}, {"open", "after"}}));
}

TEST_F(LibArchiveUnpackingTest, AFolderThatMustNotBeWrittenStaysEmpty) {
    device.write(archivePath, gzipped(TarBytes().file("a", "1").file("sub/b", "2").ended()));
    {
        const WithoutPrivileges nobody;
        EXPECT_TRUE(unpack());
    }
    EXPECT_EQ(unpacked(), Tree());
}

TEST_F(LibArchiveUnpackingTest, APipeInThePlaceOfAFileHoldsNobodyUp) {
    ASSERT_EQ(mkfifo((hostUnpacked() + "/pipe").c_str(), 0644), 0);
    EXPECT_TRUE(unpackOnto(TarBytes().file("pipe", "content").file("b", "after")));
    EXPECT_EQ(device.read(std::string(unpackedPath) + "/b"), "after");
}

TEST_F(LibArchiveUnpackingTest, WhatDoesNotFitOnTheDiskIsLeftOutAndTheOthersAreWritten) {
    device.write(archivePath, gzipped(TarBytes().file("1", std::string(300000, 'x')).file("2", "b").ended()));
    const LowerLimit fileSize(RLIMIT_FSIZE, 100000);
    EXPECT_TRUE(unpack());
    EXPECT_EQ(unpacked(), (Tree{{"1", std::string(100000, 'x')}, {"2", "b"}}));
}

TEST_F(LibArchiveUnpackingTest, UnpackingIntoAFileMakesNothing) {
    putUnpacked("file", "kept");
    device.write(archivePath, gzipped(TarBytes().file("a", "hello").ended()));
    EXPECT_TRUE(LibArchive::extractArchiveAtPath(archivePath, std::string(unpackedPath) + "/file"));
    EXPECT_EQ(unpacked(), (Tree{{"file", "kept"}}));
}

TEST_F(LibArchiveUnpackingTest, NamesAreJoinedToTheFolderAsTheyStand) {
    EXPECT_TRUE(
        unpack(TarBytes().file("../beside", "1").file("/abs", "2").file("./dot", "3").file("a/../b", "4")));
    EXPECT_EQ(unpacked(), (Tree{{"abs", "2"}, {"dot", "3"}, {"a/", ""}, {"b", "4"}}));
    EXPECT_EQ(device.read("/var/mobile/tmp/beside"), "1");
}

TEST_F(LibArchiveUnpackingTest, AnyCharacterMayStandInAName) {
    const TarBytes tar = TarBytes()
                             .file("two\nlines", "1")
                             .file(".hidden", "2")
                             .file("...", "3")
                             .file(" spaces ", "4")
                             .file("back\\slash", "5")
                             .file("%@ %s", "6")
                             .file(smile, "7")
                             .file(e_acute + "/" + e_acute, "8");
    EXPECT_TRUE(unpack(tar));
    EXPECT_EQ(unpacked(), (Tree{{"two\nlines", "1"},
                                {".hidden", "2"},
                                {"...", "3"},
                                {" spaces ", "4"},
                                {"back\\slash", "5"},
                                {"%@ %s", "6"},
                                {smile, "7"},
                                {e_acute + "/", ""},
                                {e_acute + "/" + e_acute, "8"}}));
}

TEST_F(LibArchiveUnpackingTest, AnEntryWhoseNameIsNoTextIsLeftOutAndTheOthersAreNot) {
    EXPECT_TRUE(unpack(TarBytes()
                           .file("a", "first")
                           .file("\xFF", std::string(100000, 'x'))
                           .file("folder\xC3/file", "y")
                           .file("b", "after")));
    EXPECT_EQ(unpacked(), (Tree{{"a", "first"}, {"b", "after"}}));
}

TEST_F(LibArchiveUnpackingTest, NamesMayBeAsLongAsTheFileSystemLetsThem) {
    const std::string longest(NAME_MAX, 'n');
    EXPECT_TRUE(unpack(TarBytes()
                           .extended("path", longest + "/" + longest)
                           .file("short", "1")
                           .extended("path", longest + "n")
                           .file("too long", "2")
                           .extended("path", std::string(5000, 'p'))
                           .file("much too long", "3")
                           .file("after", "4")));
    EXPECT_EQ(unpacked(), (Tree{{longest + "/", ""}, {longest + "/" + longest, "1"}, {"after", "4"}}));
}

TEST_F(LibArchiveUnpackingTest, ExtendedNamesAreUTF8WhateverTheProcesssLocaleSays) {
    ASSERT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    EXPECT_TRUE(unpack(TarBytes().extended("path", smile + e_acute).file("short", "1").file("after", "2")));
    EXPECT_EQ(unpacked(), (Tree{{smile + e_acute, "1"}, {"after", "2"}}));
}

// Of extended names that are no text the library warns.
TEST_F(LibArchiveUnpackingTest, AWarningEndsIt) {
    EXPECT_TRUE(unpack(
        TarBytes().file("before", "1").extended("path", "\xFF").file("short", "2").file("after", "3")));
    EXPECT_EQ(unpacked(), (Tree{{"before", "1"}}));
}

TEST_F(LibArchiveUnpackingTest, WithoutAnEndAllEntriesAreUnpacked) {
    EXPECT_TRUE(unpack(gzipped(TarBytes().file("a", "1").file("b", "2").unended())));
    EXPECT_EQ(unpacked(), (Tree{{"a", "1"}, {"b", "2"}}));
}

TEST_F(LibArchiveUnpackingTest, WhatStandsBehindTheEndIsNotUnpacked) {
    EXPECT_TRUE(unpack(gzipped(TarBytes().file("a", "1").ended() + TarBytes().file("b", "2").ended())));
    EXPECT_EQ(unpacked(), (Tree{{"a", "1"}}));
}

TEST_F(LibArchiveUnpackingTest, AnArchiveWithoutCompressionIsUnpackedToo) {
    EXPECT_TRUE(unpack(TarBytes().file("a", "1").ended()));
    EXPECT_EQ(unpacked(), (Tree{{"a", "1"}}));
}

TEST_F(LibArchiveUnpackingTest, WhatIsNoArchiveIsAnErrorAndMakesNothing) {
    const auto text = std::string(3000, 'x');
    for (const auto& bytes : {std::string(), std::string("x"), text, gzipped(""), gzipped("x"), gzipped(text),
                              std::string("\x1F\x8B"), std::string("PK\3\4")}) {
        expectErrorForReading(unpack(bytes));
        EXPECT_EQ(unpacked(), Tree()) << bytes.size();
    }
}

// They are the mark at a tar file's end.
TEST_F(LibArchiveUnpackingTest, WhatBeginsWithZerosIsAnEmptyArchive) {
    EXPECT_TRUE(unpack(std::string(512, '\0') + "anything"));
    EXPECT_TRUE(unpack(gzipped(std::string(1024, '\0'))));
    EXPECT_EQ(unpacked(), Tree());
}

TEST_F(LibArchiveUnpackingTest, AMissingArchiveIsAnErrorAndMakesNothing) {
    const auto before = treeAt("/var");
    expectErrorForReading(LibArchive::extractArchiveAtPath("/var/missing", "/var/new"));
    expectErrorForReading(LibArchive::extractArchiveAtPath("", "/var/new"));
    EXPECT_EQ(treeAt("/var"), before);
}

TEST_F(LibArchiveUnpackingTest, AnArchiveThatMustNotBeReadIsAnError) {
    device.write(archivePath, gzipped(TarBytes().file("a", "1").ended()));
    ASSERT_EQ(chmod(hostArchive().c_str(), 0), 0);
    const WithoutPrivileges nobody;
    expectErrorForReading(unpack());
}

TEST_F(LibArchiveUnpackingTest, WhatIsNoFileIsAnErrorAsAnArchive) {
    ASSERT_EQ(mkfifo(device.hostPath("/var/mobile/Documents/pipe").c_str(), 0644), 0);
    for (const auto* const path : {"/var/mobile/Documents", "/var/mobile/Documents/pipe", "/"})
        expectErrorForReading(LibArchive::extractArchiveAtPath(path, unpackedPath));
}

TEST_F(LibArchiveUnpackingTest, AnArchivesPathWithAZeroByteIsAnErrorAndIsNotCutOffThere) {
    device.write(archivePath, gzipped(TarBytes().file("a", "1").ended()));
    expectErrorForReading(
        LibArchive::extractArchiveAtPath(archivePath + std::string(1, '\0') + "rest", unpackedPath));
    EXPECT_EQ(unpacked(), Tree());
}

TEST_F(LibArchiveUnpackingTest, IntoAPathWithAZeroByteNothingIsUnpacked) {
    const auto before = treeAt("/var/mobile/tmp");
    device.write(archivePath, gzipped(TarBytes().file("a", "1").ended()));
    EXPECT_TRUE(LibArchive::extractArchiveAtPath(archivePath, unpackedPath + std::string(1, '\0')));
    EXPECT_EQ(treeAt("/var/mobile/tmp"), before);
}
