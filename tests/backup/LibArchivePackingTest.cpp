#include "Foundation/NSFileManager.h"
#include "LibArchiveFixture.h"
#include "LowerLimit.h"
#include "WithoutPrivileges.h"
#include "files/FileDescriptor.h"

#include <sys/stat.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <filesystem>
#include <random>
#include <sstream>
#include <vector>

namespace {

/// What is packed of which folder, and how that ends.
class LibArchivePackingTest : public LibArchiveFixture {
protected:
    /// The names of the archive's entries in their order, as GNU's tar sees them, with the given options.
    [[nodiscard]] std::vector<std::string> listed(const std::string& options = "") const {
        std::istringstream lines(
            outputOf("tar --quoting-style=literal " + options + " -tzf '" + hostArchive() + "'"));
        std::vector<std::string> names;
        for (std::string line; std::getline(lines, line);)
            names.push_back(line);
        return names;
    }

    [[nodiscard]] std::string contentOf(const std::string& name) const {
        return outputOf("tar -xOzf '" + hostArchive() + "' '" + name + "'");
    }

    /// The size of a thing of the folder to pack, as the host tells it.
    [[nodiscard]] std::size_t sizeOnHost(const std::string& name) const {
        struct stat status{};
        EXPECT_EQ(lstat((hostPacked() + "/" + name).c_str(), &status), 0);
        return static_cast<std::size_t>(status.st_size);
    }

    static std::string noise(std::size_t size) {
        std::mt19937 random(size); // NOLINT(*-msc51-cpp): the same each time
        std::string bytes(size, '\0');
        std::ranges::generate(bytes, [&] { return static_cast<char>(random()); });
        return bytes;
    }
};

} // namespace

TEST_F(LibArchivePackingTest, OfAnEmptyFolderThereIsAnEmptyArchive) {
    EXPECT_TRUE(pack());
    EXPECT_EQ(listed(), std::vector<std::string>());
    EXPECT_EQ(tarBytes().find_first_not_of('\0'), std::string::npos);
    EXPECT_TRUE(unpack());
    EXPECT_EQ(unpacked(), Tree());
}

TEST_F(LibArchivePackingTest, OfAMissingFolderThereIsAnEmptyArchive) {
    EXPECT_TRUE(LibArchive::createArchiveAtPath(archivePath, "/var/mobile/tmp/missing"));
    EXPECT_EQ(listed(), std::vector<std::string>());
    EXPECT_TRUE(unpack());
}

TEST_F(LibArchivePackingTest, WhatIsPackedIsAFileAndNoFolderGivesAnEmptyArchive) {
    put("file", "content");
    EXPECT_TRUE(LibArchive::createArchiveAtPath(archivePath, std::string(packedPath) + "/file"));
    EXPECT_EQ(listed(), std::vector<std::string>());
}

TEST_F(LibArchivePackingTest, AFileIsOneEntryOfItsName) {
    put("a", "hello");
    EXPECT_TRUE(pack());
    EXPECT_EQ(listed("-v --numeric-owner --full-time --utc"),
              std::vector<std::string>{"-rw-r--r-- 0/0               5 1970-01-01 00:00:00 a"});
    EXPECT_EQ(contentOf("a"), "hello");
}

TEST_F(LibArchivePackingTest, EveryByteOfEveryFileComesBack) {
    put("preferences.plist", "<plist/>");
    put("kCustomImage-IMG", noise(300001));
    put("kCustomIcon-IMG", std::string(70000, '\0'));
    put("customBackgroundImage-IMG", noise(512));
    put("empty", "");
    EXPECT_TRUE(pack());
    EXPECT_TRUE(unpack());
    EXPECT_EQ(unpacked(), treeAt(packedPath));
    EXPECT_EQ(unpacked().size(), 5U);
}

TEST_F(LibArchivePackingTest, FilesOfEveryLengthAroundABlockComeBack) {
    for (const std::size_t length :
         {0U, 1U, 511U, 512U, 513U, 1023U, 1024U, 1025U, 10239U, 10240U, 10241U, 65535U, 65537U})
        put(std::to_string(length), noise(length));
    EXPECT_TRUE(pack());
    EXPECT_TRUE(unpack());
    EXPECT_EQ(unpacked(), treeAt(packedPath));
}

TEST_F(LibArchivePackingTest, HiddenFilesArePackedToo) {
    put(".hidden", "1");
    put("..more", "2");
    EXPECT_TRUE(pack());
    auto names = listed();
    std::ranges::sort(names);
    EXPECT_EQ(names, (std::vector<std::string>{"..more", ".hidden"}));
}

TEST_F(LibArchivePackingTest, EntriesStandInTheOrderOfTheEnumeration) {
    for (auto number = 0; number < 40; ++number)
        put("file " + std::to_string(number * 7919 % 40), "");
    EXPECT_TRUE(pack());
    EXPECT_EQ(listed(), NSFileManager::defaultManager().enumeratorAtPath(packedPath));
    EXPECT_EQ(listed().size(), 40U);
}

TEST_F(LibArchivePackingTest, AFolderIsAFileOfItsReportedSizeFullOfZeros) {
    put("d/x", "inside");
    EXPECT_TRUE(pack());
    EXPECT_EQ(listed(), (std::vector<std::string>{"d", "d/x"}));
    for (const auto& line : listed("-v"))
        EXPECT_TRUE(line.starts_with("-rw-r--r-- 0/0 ")) << line;
    outputOf("tar -xOzf '" + hostArchive() + "' --no-recursion d > '" + device.hostPath("/var/mobile/tmp/d") +
             "'");
    EXPECT_EQ(device.read("/var/mobile/tmp/d"), std::string(sizeOnHost("d"), '\0'));
    EXPECT_EQ(contentOf("d/x"), "inside");
}

TEST_F(LibArchivePackingTest, AFolderInTheFolderBecomesAFileInWhichNothingCanBe) {
    put("d/x", "inside");
    put("z", "after");
    EXPECT_TRUE(pack());
    EXPECT_TRUE(unpack());
    EXPECT_EQ(unpacked(), (Tree{{"d", std::string(sizeOnHost("d"), '\0')}, {"z", "after"}}));
}

TEST_F(LibArchivePackingTest, FoldersOfAnyDepthArePacked) {
    put("1/2/3/4/deep", "deep");
    EXPECT_TRUE(pack());
    EXPECT_EQ(listed(), (std::vector<std::string>{"1", "1/2", "1/2/3", "1/2/3/4", "1/2/3/4/deep"}));
    EXPECT_EQ(contentOf("1/2/3/4/deep"), "deep");
}

TEST_F(LibArchivePackingTest, OfALinkTheHeaderAloneIsPacked) {
    put("file", "content of the file");
    std::filesystem::create_symlink("file", hostPacked() + "/link");
    std::filesystem::create_symlink("nowhere", hostPacked() + "/broken");
    EXPECT_TRUE(pack());
    EXPECT_TRUE(unpack());
    EXPECT_EQ(unpacked(), (Tree{{"file", "content of the file"},
                                {"link", std::string(4, '\0')},
                                {"broken", std::string(7, '\0')}}));
}

TEST_F(LibArchivePackingTest, APipeIsAnEmptyFileAndHoldsNobodyUp) {
    ASSERT_EQ(mkfifo((hostPacked() + "/pipe").c_str(), 0644), 0);
    EXPECT_TRUE(pack());
    EXPECT_TRUE(unpack());
    EXPECT_EQ(unpacked(), (Tree{{"pipe", ""}}));
}

TEST_F(LibArchivePackingTest, AFileThatCannotBeReadIsPackedWithoutItsContent) {
    put("1", "first");
    put("2", "secret");
    put("3", "third");
    ASSERT_EQ(chmod((hostPacked() + "/2").c_str(), 0), 0);
    ASSERT_EQ(chmod(device.hostPath("/var/mobile/Documents").c_str(), 0777), 0);
    {
        const WithoutPrivileges nobody;
        EXPECT_TRUE(pack());
    }
    EXPECT_TRUE(unpack());
    EXPECT_EQ(unpacked(), (Tree{{"1", "first"}, {"2", std::string(6, '\0')}, {"3", "third"}}));
}

TEST_F(LibArchivePackingTest, AnItemWithoutAttributesIsAnEmptyFile) {
    // The way to it is longer than a path may be.
    const std::string name(NAME_MAX, 'n');
    FileDescriptor folder(open(hostPacked().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    std::string way;
    while (std::string_view(packedPath).size() + way.size() < PATH_MAX) {
        ASSERT_EQ(mkdirat(folder.get(), name.c_str(), 0755), 0);
        folder = FileDescriptor(openat(folder.get(), name.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        way += name + "/";
    }
    const FileDescriptor file(openat(folder.get(), "file", O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
    ASSERT_EQ(write(file.get(), "content", 7), 7);
    EXPECT_TRUE(pack());
    const auto last = listed("-v").back();
    EXPECT_TRUE(last.starts_with("-rw-r--r-- 0/0               0 ")) << last;
    EXPECT_TRUE(last.ends_with(" " + way + "file")) << last;
}

TEST_F(LibArchivePackingTest, AnArchiveThatIsThereAlreadyIsReplaced) {
    device.write(archivePath, noise(100000));
    put("a", "hello");
    EXPECT_TRUE(pack());
    EXPECT_LT(device.read(archivePath).size(), 1000U);
    EXPECT_EQ(listed(), std::vector<std::string>{"a"});
}

TEST_F(LibArchivePackingTest, AnArchiveInTheFolderThatItPacksIsAnEntryOfItself) {
    put("a", "hello");
    const auto inside = std::string(packedPath) + "/inside.tar.gz";
    EXPECT_TRUE(LibArchive::createArchiveAtPath(inside, packedPath));
    EXPECT_TRUE(LibArchive::extractArchiveAtPath(inside, unpackedPath));
    EXPECT_EQ(unpacked().at("a"), "hello");
    EXPECT_TRUE(unpacked().contains("inside.tar.gz"));
}

TEST_F(LibArchivePackingTest, AnArchiveInAMissingFolderIsAnErrorAndMakesNothing) {
    put("a", "hello");
    const auto before = treeAt("/var");
    expectErrorForWriting(LibArchive::createArchiveAtPath("/var/missing/x.tar.gz", packedPath));
    EXPECT_EQ(treeAt("/var"), before);
}

TEST_F(LibArchivePackingTest, AnArchiveThatCannotBeWrittenIsAnErrorAndKeepsWhatItHolds) {
    put("a", "hello");
    device.write(archivePath, "precious");
    ASSERT_EQ(chmod(hostArchive().c_str(), 0444), 0);
    {
        const WithoutPrivileges nobody;
        expectErrorForWriting(pack());
        expectErrorForWriting(
            LibArchive::createArchiveAtPath("/var/mobile/Documents/new.tar.gz", packedPath));
    }
    EXPECT_EQ(treeAt("/var/mobile/Documents"), (Tree{{"backup.tar.gz", "precious"}}));
}

TEST_F(LibArchivePackingTest, WhatIsNoFileIsAnErrorAsAnArchive) {
    put("a", "hello");
    ASSERT_EQ(mkfifo(device.hostPath("/var/mobile/Documents/pipe").c_str(), 0644), 0);
    for (const std::string_view path : {"/var/mobile/Documents", "/var/mobile/Documents/pipe", "/", ""})
        expectErrorForWriting(LibArchive::createArchiveAtPath(path, packedPath));
}

TEST_F(LibArchivePackingTest, APathWithAZeroByteIsAnErrorAndIsNotCutOffThere) {
    put("a", "hello");
    expectErrorForWriting(
        LibArchive::createArchiveAtPath(std::string_view("/var/mobile/Documents/a\0b", 25), packedPath));
    EXPECT_EQ(treeAt("/var/mobile/Documents"), Tree());
}

TEST_F(LibArchivePackingTest, AContentsPathWithAZeroByteNamesNoFolder) {
    put("a", "hello");
    EXPECT_TRUE(LibArchive::createArchiveAtPath(archivePath, std::string(packedPath) + std::string(1, '\0')));
    EXPECT_EQ(listed(), std::vector<std::string>());
}

TEST_F(LibArchivePackingTest, AfterABlockThatCannotBeWrittenTheNextItemIsRefusedWithoutAnError) {
    put("1", noise(1000000));
    put("2", noise(1000000));
    const LowerLimit fileSize(RLIMIT_FSIZE, 100000);
    expectFailureWithoutError(pack());
    EXPECT_GT(device.read(archivePath).size(), 50000U) << "what there is stays";
    EXPECT_LE(device.read(archivePath).size(), 100000U);
}

// The library tells that by another number than the one that counts.
TEST_F(LibArchivePackingTest, ABlockOfTheLastItemThatCannotBeWrittenIsNotNoticed) {
    put("image", noise(1000000));
    const LowerLimit fileSize(RLIMIT_FSIZE, 100000);
    EXPECT_TRUE(pack());
}

TEST_F(LibArchivePackingTest, NothingIsPackedAfterAnItemThatFailed) {
    for (auto number = 0; number < 20; ++number)
        put("image" + std::to_string(number), noise(100000));
    {
        const LowerLimit fileSize(RLIMIT_FSIZE, 250000);
        expectFailureWithoutError(pack());
    }
    EXPECT_TRUE(unpack());
    EXPECT_LE(unpacked().size(), 3U);
    const auto order = NSFileManager::defaultManager().enumeratorAtPath(packedPath);
    EXPECT_EQ(unpacked().at(order.at(0)), treeAt(packedPath).at(order.at(0)));
}

TEST_F(LibArchivePackingTest, WhatCannotBeWrittenAtTheVeryEndIsNotExamined) {
    put("a", "hello");
    const LowerLimit fileSize(RLIMIT_FSIZE, 20);
    EXPECT_TRUE(pack());
    EXPECT_LE(device.read(archivePath).size(), 20U);
}
