#include "GzipBytes.h"
#include "LibArchiveFixture.h"
#include "Meanwhile.h"
#include "TarBytes.h"

#include <fcntl.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

/// Whatever an archive and its surroundings say, nothing outside the device's root is touched.
class LibArchiveRootTest : public LibArchiveFixture {
protected:
    LibArchiveRootTest() { std::ofstream(outside.path() + "/secret") << "outside"; }

    ~LibArchiveRootTest() override {
        std::ifstream secret(outside.path() + "/secret");
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(secret), {}), "outside");
        EXPECT_EQ(std::distance(fs::directory_iterator(outside.path()), {}), 1);
    }

    void link(const std::string& target, const std::string& path) const {
        fs::create_symlink(target, device.hostPath(path));
    }

    /// Lets a folder of the device and a link to the outside change places while something is done.
    template <class Work>
    void whileItChangesPlaces(const std::string& path, Work work) const {
        link(outside.path(), "/other");
        const auto folder = device.hostPath(path);
        const auto other = device.hostPath("/other");
        const Meanwhile changing(
            [&] { renameat2(AT_FDCWD, folder.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE); });
        for (int attempt = 0; attempt < 300; ++attempt)
            work();
    }

    TemporaryFolder outside;
};

} // namespace

TEST_F(LibArchiveRootTest, NamesThatLeadUpEndAtTheRoot) {
    const std::string up = "../../../../../../../../..";
    EXPECT_TRUE(unpack(gzipped(TarBytes()
                                   .file(up + "/top", "1")
                                   .extended("path", up + outside.path() + "/secret")
                                   .file("s", "2")
                                   .ended())));
    EXPECT_EQ(device.read("/top"), "1");
    EXPECT_EQ(device.read(outside.path() + "/secret"), "2") << "at the same path below the root";
}

TEST_F(LibArchiveRootTest, LinksInTheFolderToUnpackIntoLeadNowhereOutside) {
    link(outside.path(), std::string(unpackedPath) + "/folder");
    link(outside.path() + "/secret", std::string(unpackedPath) + "/file");
    device.write(archivePath, gzipped(TarBytes().file("folder/secret", "1").file("file", "2").ended()));
    EXPECT_TRUE(unpack());
}

TEST_F(LibArchiveRootTest, AnArchiveThatIsALinkToTheOutsideIsNeitherReadNorWritten) {
    put("a", "hello");
    device.write("/inside.tar.gz", gzipped(TarBytes().file("b", "1").ended()));
    fs::rename(device.hostPath("/inside.tar.gz"), outside.path() + "/archive");
    link(outside.path() + "/archive", archivePath);
    expectErrorForReading(unpack());
    expectErrorForWriting(pack());
    EXPECT_EQ(unpacked(), Tree());
    fs::remove(outside.path() + "/archive");
}

TEST_F(LibArchiveRootTest, AnArchiveThatIsALinkInsideIsWrittenAndReadWhereItLeads) {
    put("a", "hello");
    link("/var/mobile/tmp/target", archivePath);
    EXPECT_TRUE(pack());
    EXPECT_TRUE(fs::is_regular_file(device.hostPath("/var/mobile/tmp/target")));
    EXPECT_TRUE(unpack());
    EXPECT_EQ(unpacked(), (Tree{{"a", "hello"}}));
}

TEST_F(LibArchiveRootTest, WhatALinkToTheOutsideLeadsToIsNotPacked) {
    link(outside.path() + "/secret", std::string(packedPath) + "/link");
    link(outside.path(), std::string(packedPath) + "/folder");
    EXPECT_TRUE(pack());
    EXPECT_FALSE(tarBytes().contains("outside"));
    EXPECT_TRUE(LibArchive::createArchiveAtPath(archivePath, std::string(packedPath) + "/folder"));
    EXPECT_FALSE(tarBytes().contains("outside"));
}

TEST_F(LibArchiveRootTest, NothingOutsideIsPackedWhileFoldersAndLinksChangePlaces) {
    put("secret", "inside");
    whileItChangesPlaces(packedPath, [&] {
        const auto result = pack();
        EXPECT_TRUE(result);
        EXPECT_TRUE(unpack());
        EXPECT_FALSE(device.read(archivePath).empty());
        EXPECT_FALSE(tarBytes().contains("outside"));
    });
}

TEST_F(LibArchiveRootTest, NothingOutsideIsWrittenWhileFoldersAndLinksChangePlaces) {
    device.write(archivePath, gzipped(TarBytes().file("secret", "1").file("new", "2").ended()));
    whileItChangesPlaces(unpackedPath, [&] { EXPECT_TRUE(unpack()); });
}

TEST_F(LibArchiveRootTest, NoArchiveIsMadeOutsideWhileFoldersAndLinksChangePlaces) {
    put("a", "hello");
    int made = 0;
    whileItChangesPlaces("/var/mobile/Documents", [&] {
        made += LibArchive::createArchiveAtPath("/var/mobile/Documents/secret", packedPath) ? 1 : 0;
    });
    EXPECT_GT(made, 0);
}
