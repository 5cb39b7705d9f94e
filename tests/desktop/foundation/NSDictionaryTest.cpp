#include "Foundation/NSDictionary.h"

#include "TestDevice.h"
#include "propertylists/PropertyListCoding.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

const Dictionary sample{
    {"name", "\xE2\x9C\x93 <a>"}, {"count", -3}, {"on", true}, {"list", Array{0.5, Dictionary()}}};

class NSDictionaryTest : public testing::Test {
protected:
    TestDevice device_;
};

} // namespace

TEST_F(NSDictionaryTest, WhatIsWrittenIsReadBack) {
    EXPECT_TRUE(writeToFileAtomically(sample, "/var/mobile/a.plist"));
    EXPECT_EQ(dictionaryWithContentsOfFile("/var/mobile/a.plist"), sample);
}

TEST_F(NSDictionaryTest, TheFileIsAnXMLPropertyList) {
    EXPECT_TRUE(writeToFileAtomically({{"a", 1}}, "/var/mobile/a.plist"));
    const auto file = device_.read("/var/mobile/a.plist");
    EXPECT_TRUE(file.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>")) << file;
    EXPECT_TRUE(file.contains("<key>a</key>")) << file;
}

TEST_F(NSDictionaryTest, ABinaryFileIsReadToo) {
    device_.write("/var/mobile/a.plist", *encodePropertyList(sample, PropertyListFormat::Binary));
    EXPECT_EQ(dictionaryWithContentsOfFile("/var/mobile/a.plist"), sample);
}

TEST_F(NSDictionaryTest, AnEmptyDictionaryIsReadAsOne) {
    EXPECT_TRUE(writeToFileAtomically({}, "/var/mobile/a.plist"));
    EXPECT_EQ(dictionaryWithContentsOfFile("/var/mobile/a.plist"), Dictionary());
}

TEST_F(NSDictionaryTest, MissingDamagedAndOtherFilesReadAsNothing) {
    device_.write("/var/mobile/damaged.plist", "bplist00 and no more");
    device_.write("/var/mobile/empty.plist", "");
    device_.write("/var/mobile/array.plist", *encodePropertyList(Array{1}, PropertyListFormat::XML));
    ASSERT_EQ(mkfifo(device_.hostPath("/var/mobile/pipe.plist").c_str(), 0600), 0);
    for (const auto* const name :
         {"missing.plist", "damaged.plist", "empty.plist", "array.plist", "pipe.plist", "tmp", ""})
        EXPECT_FALSE(dictionaryWithContentsOfFile(std::string("/var/mobile/") + name)) << name;
}

TEST_F(NSDictionaryTest, AFileThatIsReplacedKeepsItsMode) {
    device_.write("/var/mobile/a.plist", "old");
    ASSERT_EQ(chmod(device_.hostPath("/var/mobile/a.plist").c_str(), 0640), 0);
    EXPECT_TRUE(writeToFileAtomically(sample, "/var/mobile/a.plist"));
    struct stat status{};
    ASSERT_EQ(stat(device_.hostPath("/var/mobile/a.plist").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST_F(NSDictionaryTest, WhatCannotBeWrittenLeavesTheOldFile) {
    ASSERT_TRUE(writeToFileAtomically(sample, "/var/mobile/a.plist"));
    EXPECT_FALSE(writeToFileAtomically({{"a", "\xFF"}}, "/var/mobile/a.plist"));
    EXPECT_FALSE(writeToFileAtomically({{"a", "\x01"}}, "/var/mobile/a.plist"));
    EXPECT_EQ(dictionaryWithContentsOfFile("/var/mobile/a.plist"), sample);
}

TEST_F(NSDictionaryTest, WritingWhereNoFileCanBeFails) {
    for (const auto* const path :
         {"/missing/a.plist", "/var/mobile", "/var/mobile/", "/", "", "/var/mobile/."})
        EXPECT_FALSE(writeToFileAtomically(sample, path)) << path;
    EXPECT_TRUE(std::filesystem::is_directory(device_.hostPath("/var/mobile")));
}
