#include "System/FileSystemRepresentation.h"

#include "Meanwhile.h"
#include "TestDevice.h"
#include "WithoutPrivileges.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fcntl.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

namespace fs = std::filesystem;

namespace {

class FileSystemRepresentationTest : public testing::TestWithParam<DeviceRoot::Resolution> {
protected:
    FileSystemRepresentationTest() {
        std::ofstream(outside.path() + "/secret") << "outside";
        EXPECT_EQ(chmod(device.hostPath("").c_str(), 0777), 0); // for tests without privileges
    }

    /// What another library finds by the name.
    static std::string contentBehind(const FileSystemRepresentation& name) {
        std::ifstream file(name.c_str(), std::ios::binary);
        EXPECT_TRUE(file.is_open()) << name.c_str();
        return {std::istreambuf_iterator<char>(file), {}};
    }

    void link(const std::string& target, std::string_view path) const {
        fs::create_symlink(target, device.hostPath(path));
    }

    static bool isForNothing(std::string_view path) {
        return !FileSystemRepresentation::ofFileForReading(path) &&
               !FileSystemRepresentation::ofFileForWriting(path);
    }

    TestDevice device{{.resolution = GetParam()}};
    TemporaryFolder outside;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Resolutions, FileSystemRepresentationTest,
                         testing::Values(DeviceRoot::Resolution::Kernel, DeviceRoot::Resolution::ByHand));

TEST_P(FileSystemRepresentationTest, AFileToReadIsFoundByIt) {
    device.write("/folder/a", "content");
    const auto name = FileSystemRepresentation::ofFileForReading("/folder/a");
    ASSERT_TRUE(name);
    EXPECT_EQ(contentBehind(*name), "content");
    EXPECT_EQ(contentBehind(*name), "content") << "from its start again";
}

TEST_P(FileSystemRepresentationTest, AMissingFileIsNoneToRead) {
    EXPECT_FALSE(FileSystemRepresentation::ofFileForReading("/missing"));
    EXPECT_FALSE(fs::exists(device.hostPath("/missing")));
}

TEST_P(FileSystemRepresentationTest, AFileToWriteIsMadeAndFoundByIt) {
    const auto name = FileSystemRepresentation::ofFileForWriting("/new");
    ASSERT_TRUE(name);
    std::ofstream(name->c_str()) << "written";
    EXPECT_EQ(device.read("/new"), "written");
}

TEST_P(FileSystemRepresentationTest, AFileToWriteKeepsItsContentUntilItIsWritten) {
    device.write("/a", "content");
    const auto name = FileSystemRepresentation::ofFileForWriting("/a");
    ASSERT_TRUE(name);
    EXPECT_EQ(device.read("/a"), "content");
    std::ofstream(name->c_str()) << "new";
    EXPECT_EQ(device.read("/a"), "new");
}

TEST_P(FileSystemRepresentationTest, WhatCanBeNoFileHasNone) {
    ASSERT_EQ(mkfifo(device.hostPath("/pipe").c_str(), 0644), 0);
    for (const auto path :
         {std::string_view(), std::string_view("/a\0b", 4), std::string_view("/"), std::string_view("/pipe"),
          std::string_view("/missing/a"), std::string_view("/var/mobile")})
        EXPECT_TRUE(isForNothing(path)) << path;
    EXPECT_FALSE(fs::exists(device.hostPath("/a"))) << "no path is cut off";
}

TEST_P(FileSystemRepresentationTest, WhatMustNotBeTouchedHasNone) {
    device.write("/closed", "content");
    ASSERT_EQ(chmod(device.hostPath("/closed").c_str(), 0), 0);
    const WithoutPrivileges nobody;
    EXPECT_TRUE(isForNothing("/closed"));
}

TEST_P(FileSystemRepresentationTest, ItLeadsToTheSameFileWhateverBecomesOfThePath) {
    device.write("/a", "content");
    const auto reading = FileSystemRepresentation::ofFileForReading("/a");
    const auto writing = FileSystemRepresentation::ofFileForWriting("/a");
    fs::rename(device.hostPath("/a"), device.hostPath("/moved"));
    link(outside.path() + "/secret", "/a");
    ASSERT_TRUE(reading && writing);
    EXPECT_EQ(contentBehind(*reading), "content");
    std::ofstream(writing->c_str()) << "written";
    EXPECT_EQ(device.read("/moved"), "written");
}

TEST_P(FileSystemRepresentationTest, LinksLeadNowhereOutside) {
    link(outside.path() + "/secret", "/absolute");
    link("../../../../.." + outside.path() + "/secret", "/relative");
    link(outside.path(), "/folder");
    for (const auto* const path : {"/absolute", "/relative", "/folder/secret"}) {
        EXPECT_FALSE(FileSystemRepresentation::ofFileForReading(path)) << path;
        EXPECT_FALSE(FileSystemRepresentation::ofFileForWriting(path)) << path;
    }
    EXPECT_FALSE(FileSystemRepresentation::ofFileForReading("/.." + outside.path() + "/secret"));
}

TEST_P(FileSystemRepresentationTest, LinksInsideAreFollowed) {
    device.write("/folder/a", "content");
    link("/folder/a", "/absolute");
    link("folder/new", "/broken");
    const auto reading = FileSystemRepresentation::ofFileForReading("/absolute");
    ASSERT_TRUE(reading);
    EXPECT_EQ(contentBehind(*reading), "content");
    const auto writing = FileSystemRepresentation::ofFileForWriting("/broken");
    ASSERT_TRUE(writing);
    std::ofstream(writing->c_str()) << "written";
    EXPECT_EQ(device.read("/folder/new"), "written");
}

TEST_P(FileSystemRepresentationTest, ItIsGoodWhereItIsMovedTo) {
    device.write("/a", "content");
    auto first = FileSystemRepresentation::ofFileForReading("/a");
    ASSERT_TRUE(first);
    const FileSystemRepresentation second(std::move(*first));
    EXPECT_EQ(contentBehind(second), "content");
}

TEST_P(FileSystemRepresentationTest, NothingOutsideIsReadOrWrittenWhileFilesAndLinksChangePlaces) {
    device.write("/folder/secret", "inside");
    link(outside.path(), "/other");
    const auto folder = device.hostPath("/folder");
    const auto other = device.hostPath("/other");
    int read = 0;
    int refused = 0;
    {
        const Meanwhile changing(
            [&] { renameat2(AT_FDCWD, folder.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE); });
        for (int attempt = 0; attempt < 200000 && (attempt < 2000 || read == 0 || refused == 0); ++attempt) {
            const auto name = FileSystemRepresentation::ofFileForReading("/folder/secret");
            if (name) {
                ASSERT_EQ(contentBehind(*name), "inside");
            }
            ++(name ? read : refused);
            if (const auto writing = FileSystemRepresentation::ofFileForWriting("/folder/secret"))
                std::ofstream(writing->c_str(), std::ios::in) << "inside";
        }
    }
    EXPECT_GT(read, 0);
    EXPECT_GT(refused, 0);
    std::ifstream secret(outside.path() + "/secret");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(secret), {}), "outside");
}
