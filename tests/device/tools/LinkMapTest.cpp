#include "LinkMap.h"

#include "TestImages.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <optional>
#include <string>

namespace {

constexpr auto text = R"(# Path: bundle
# Arch: arm64
# Object files:
[  0] linker synthesized
[  1] some folder/0-One.cpp.o
[  2] 1-Two.cpp.o
[  3] stubs/libSystem.tbd
# Sections:
# Address	Size    	Segment	Section
0x00004000	0x00000010	__TEXT	__text
# Symbols:
# Address	Size    	File  Name
0x00004000	0x00000008	[  1] _function
0x00004008	0x00000008	[  2] +[Class method]
0x00004010	0x00000008	[  2] _local
0x00008000	0x00000008	[  0] __got
# Dead Stripped Symbols:
#        	Size    	File  Name
<<dead>>	0x00000008	[  2] _function
<<dead>>	0x00000008	[  1] ltmp0
)";

/// A map that is a file for as long as it is read.
LinkMap mapOf(const std::string& content) {
    const auto path = testing::TempDir() + "LinkMapTest." + std::to_string(getpid());
    std::ofstream(path) << content;

    struct Removal {
        ~Removal() { (void)std::remove(path.c_str()); }

        const std::string& path;
    } const removal{path};

    return LinkMap(path);
}

} // namespace

TEST(LinkMapTest, ObjectsAreListedInTheirOrder) {
    EXPECT_EQ(mapOf(text).objects(), (std::vector<std::string>{"some folder/0-One.cpp.o", "1-Two.cpp.o"}));
}

TEST(LinkMapTest, SymbolsAreFoundByObject) {
    const auto map = mapOf(text);
    EXPECT_EQ(map.address(0, "_function"), 0x4000U);
    EXPECT_EQ(map.address(1, "+[Class method]"), 0x4008U);
    EXPECT_EQ(map.address(1, "_function"), std::nullopt);
    EXPECT_EQ(map.addressInAny("_local"), 0x4010U);
    EXPECT_EQ(map.addressInAny("__got"), std::nullopt);
    EXPECT_TRUE(map.isStripped(1, "_function"));
    EXPECT_FALSE(map.isStripped(0, "_function"));
}

TEST(LinkMapTest, OtherFilesAreRefused) {
    EXPECT_NE(refusalOf([] { (void)mapOf(""); }).find("no map of a link"), std::string::npos);
    EXPECT_NE(refusalOf([] { (void)mapOf("# Symbols:\n0x4000\t0x8\t_function\n"); }).find("names no file"),
              std::string::npos);
    EXPECT_NE(refusalOf([] { (void)mapOf("# Symbols:\n4000\t8\t[  1] _function\n"); }).find("has no address"),
              std::string::npos);
    EXPECT_NE(refusalOf([] { (void)LinkMap("/nowhere/at/all"); }), "");
}
