#include "files/RegularFile.h"

#include "TestDevice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <span>
#include <string>

namespace {

class RegularFileTest : public testing::Test {
protected:
    [[nodiscard]] static int errorOf(std::string_view path, int flags) {
        const auto file = RegularFile::open(Device::current().root(), path, flags);
        return file ? 0 : file.error();
    }

    TestDevice device;
};

} // namespace

TEST_F(RegularFileTest, ReadsUpToWhatTheBufferHolds) {
    device.write("/file", "1234567");
    auto file = RegularFile::open(Device::current().root(), "/file", O_RDONLY);
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ(file->status().st_size, 7);
    std::array<std::byte, 4> buffer{};
    EXPECT_EQ(file->read(buffer).value_or(99), 4U);
    EXPECT_EQ(file->read(buffer).value_or(99), 3U);
    EXPECT_EQ(file->read(buffer).value_or(99), 0U);
}

TEST_F(RegularFileTest, WritesAllBytesOneAfterTheOther) {
    auto file = RegularFile::open(Device::current().root(), "/file", O_WRONLY | O_CREAT, 0600);
    ASSERT_TRUE(file.has_value());
    const std::string text(1000000, 'x');
    EXPECT_TRUE(file->write(std::as_bytes(std::span(text))).has_value());
    EXPECT_TRUE(file->write(std::as_bytes(std::span(text))).has_value());
    EXPECT_EQ(device.read("/file"), text + text);
}

TEST_F(RegularFileTest, ReadingAFileThatIsOpenForWritingFails) {
    device.write("/file", "text");
    auto file = RegularFile::open(Device::current().root(), "/file", O_WRONLY);
    ASSERT_TRUE(file.has_value());
    std::array<std::byte, 4> buffer{};
    EXPECT_EQ(file->read(buffer).error(), EBADF);
}

TEST_F(RegularFileTest, RefusesFoldersAndPipesWithoutWaiting) {
    ASSERT_EQ(mkfifo(device.hostPath("/pipe").c_str(), 0644), 0);
    EXPECT_EQ(errorOf("/", O_RDONLY), EISDIR);
    EXPECT_EQ(errorOf("/pipe", O_RDONLY), ENOTSUP);
    EXPECT_EQ(errorOf("/pipe", O_RDWR), ENOTSUP);
    EXPECT_EQ(errorOf("/pipe", O_WRONLY), ENXIO);
}

TEST_F(RegularFileTest, OpeningInAFolderFollowsNoLink) {
    device.write("/file", "text");
    std::filesystem::create_symlink("file", device.hostPath("/link"));
    const auto folder = Device::current().root().open("/", O_PATH);
    ASSERT_TRUE(folder.has_value());
    EXPECT_TRUE(RegularFile::openIn(folder->get(), "file", O_RDONLY).has_value());
    EXPECT_EQ(RegularFile::openIn(folder->get(), "link", O_RDONLY).error(), ELOOP);
    EXPECT_EQ(errorOf("/link", O_RDONLY), 0);
}

TEST_F(RegularFileTest, AFileOfTheHostIsOpenedThroughLinksAndAnythingElseIsRefused) {
    device.write("/folder/file", "abc");
    std::filesystem::create_symlink("file", device.hostPath("/folder/link"));
    ASSERT_EQ(mkfifo(device.hostPath("/folder/pipe").c_str(), 0600), 0);
    auto file = RegularFile::openOnHost(device.hostPath("/folder/link"));
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ(file->readAll(10), NSData::dataWithBytes("abc"));
    EXPECT_EQ(RegularFile::openOnHost(device.hostPath("/folder/none")).error(), ENOENT);
    EXPECT_EQ(RegularFile::openOnHost(device.hostPath("/folder")).error(), EISDIR);
    EXPECT_EQ(RegularFile::openOnHost(device.hostPath("/folder/pipe")).error(), ENOTSUP);
}
