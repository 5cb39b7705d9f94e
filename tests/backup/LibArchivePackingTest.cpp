#include "LibArchive.h"

#include "TestDevice.h"

#include <gtest/gtest.h>

namespace {

class LibArchivePackingTest : public testing::Test {
protected:
    TestDevice device;
};

} // namespace

TEST_F(LibArchivePackingTest, WhatWasPackedUnpacks) {
    device.write("/var/mobile/tmp/in/a", "hello");
    device.write("/var/mobile/tmp/in/b-IMG", std::string(100000, '\xFF'));
    EXPECT_TRUE(LibArchive::createArchiveAtPath("/var/mobile/Documents/x.tar.gz", "/var/mobile/tmp/in"));
    EXPECT_TRUE(LibArchive::extractArchiveAtPath("/var/mobile/Documents/x.tar.gz", "/var/mobile/tmp/out"));
    EXPECT_EQ(device.read("/var/mobile/tmp/out/a"), "hello");
    EXPECT_EQ(device.read("/var/mobile/tmp/out/b-IMG"), std::string(100000, '\xFF'));
}

TEST_F(LibArchivePackingTest, AnArchiveThatCannotBeOpenedIsAnErrorWithItsCode) {
    const auto written = LibArchive::createArchiveAtPath("/nowhere/x.tar.gz", "/var/mobile/tmp");
    ASSERT_FALSE(written);
    ASSERT_TRUE(written.error());
    EXPECT_EQ(written.error()->domain(), "com.orvel.corvex");
    EXPECT_EQ(written.error()->code(), 1);
    EXPECT_EQ(written.error()->localizedDescription(), "Failed to open archive for writing");
    const auto read = LibArchive::extractArchiveAtPath("/nowhere/x.tar.gz", "/var/mobile/tmp");
    ASSERT_FALSE(read);
    ASSERT_TRUE(read.error());
    EXPECT_EQ(read.error()->domain(), "com.orvel.corvex");
    EXPECT_EQ(read.error()->code(), 2);
    EXPECT_EQ(read.error()->localizedDescription(), "Failed to open archive for reading");
}
