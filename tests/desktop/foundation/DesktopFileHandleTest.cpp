#include "DesktopFileHandle.h"

#include "ObjectiveC/Class.h"
#include "TestDevice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

namespace {

class DesktopFileHandleTest : public testing::Test {
protected:
    static bool write(const Ref<NSFileHandle>& handle, std::string_view text) {
        return handle->writeData(NSData::dataWithBytes(text));
    }

    TestDevice device;
};

} // namespace

TEST_F(DesktopFileHandleTest, WritesFromTheStartAndLeavesWhatLiesBeyond) {
    device.write("/file", "0123456789");
    const auto handle = NSFileHandle::fileHandleForWritingAtPath("/file");
    ASSERT_TRUE(handle);
    EXPECT_TRUE(write(handle, "ab"));
    EXPECT_TRUE(write(handle, ""));
    EXPECT_TRUE(write(handle, "cd"));
    EXPECT_EQ(device.read("/file"), "abcd456789");
}

TEST_F(DesktopFileHandleTest, FollowsLinksInside) {
    device.write("/file", "text");
    std::filesystem::create_symlink("/file", device.hostPath("/link"));
    const auto handle = NSFileHandle::fileHandleForWritingAtPath("/link");
    ASSERT_TRUE(handle);
    EXPECT_TRUE(write(handle, "TE"));
    EXPECT_EQ(device.read("/file"), "TExt");
}

TEST_F(DesktopFileHandleTest, WritesNothingOnceItIsClosed) {
    device.write("/file", "text");
    const auto handle = NSFileHandle::fileHandleForWritingAtPath("/file");
    ASSERT_TRUE(handle);
    handle->closeFile();
    EXPECT_FALSE(write(handle, "more"));
    EXPECT_FALSE(write(handle, ""));
    handle->closeFile();
    EXPECT_EQ(device.read("/file"), "text");
}

TEST_F(DesktopFileHandleTest, IsNotMadeWithoutAFileToWriteTo) {
    device.write("/folder/file", "");
    ASSERT_EQ(mkfifo(device.hostPath("/pipe").c_str(), 0644), 0);
    const TemporaryFolder outside;
    std::filesystem::create_symlink(outside.path(), device.hostPath("/escape"));
    std::filesystem::copy(device.hostPath("/folder/file"), outside.path() + "/file");
    for (const auto* const path : {"", "/", "/folder", "/missing", "/pipe", "/escape/file"})
        EXPECT_FALSE(NSFileHandle::fileHandleForWritingAtPath(path)) << path;
    EXPECT_FALSE(std::filesystem::exists(device.hostPath("/missing")));
}

TEST_F(DesktopFileHandleTest, IsOfThePlatformsClass) {
    device.write("/file", "");
    EXPECT_EQ(NSFileHandle::fileHandleForWritingAtPath("/file")->isa().name(), "NSFileHandle");
}
