#include "Foundation/NSData.h"
#include "TestDevice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

class NSDataFileTest : public testing::Test {
protected:
    TestDevice device;
};

} // namespace

TEST_F(NSDataFileTest, ReadsTheWholeContentOfAFile) {
    for (const std::size_t size : {0U, 1U, 4095U, 4096U, 4097U, 1000000U}) {
        const std::string content(size, '\0');
        device.write("/file", content);
        const auto data = NSData::dataWithContentsOfFile("/file");
        ASSERT_TRUE(data.has_value()) << size;
        EXPECT_EQ(data->view(), content);
    }
}

TEST_F(NSDataFileTest, FollowsLinksInside) {
    device.write("/file", "text");
    std::filesystem::create_symlink("/file", device.hostPath("/link"));
    EXPECT_EQ(NSData::dataWithContentsOfFile("/link"), NSData::dataWithBytes("text"));
}

TEST_F(NSDataFileTest, ReadsNothingOutside) {
    const TemporaryFolder outside;
    std::ofstream(outside.path() + "/file") << "outside";
    std::filesystem::create_symlink(outside.path() + "/file", device.hostPath("/escape"));
    EXPECT_FALSE(NSData::dataWithContentsOfFile("/escape").has_value());
    EXPECT_FALSE(NSData::dataWithContentsOfFile("/../.." + outside.path() + "/file").has_value());
}

TEST_F(NSDataFileTest, MissingFilesFoldersAndPipesHaveNoContent) {
    ASSERT_EQ(mkfifo(device.hostPath("/pipe").c_str(), 0644), 0);
    for (const auto* const path : {"", "/", "/missing", "/pipe"})
        EXPECT_FALSE(NSData::dataWithContentsOfFile(path).has_value()) << path;
}
