#include "FileBytes.h"

#include "TestImages.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string>

namespace {

FileBytes eightBytes() {
    return {"eight", {1, 2, 3, 4, 5, 6, 7, 8}};
}

} // namespace

TEST(FileBytesTest, NumbersAreLittleEndian) {
    auto bytes = eightBytes();
    EXPECT_EQ(bytes.read<std::uint8_t>(7), 8);
    EXPECT_EQ(bytes.read<std::uint16_t>(1), 0x0302);
    EXPECT_EQ(bytes.read<std::uint32_t>(4), 0x08070605U);
    EXPECT_EQ(bytes.read<std::uint64_t>(0), 0x0807060504030201U);
    bytes.write(2, std::uint32_t{0xAABBCCDD});
    EXPECT_EQ(bytes.read<std::uint64_t>(0), 0x0807AABBCCDD0201U);
    bytes.append(std::uint16_t{0x1234});
    EXPECT_EQ(bytes.size(), 10U);
    EXPECT_EQ(bytes.read<std::uint16_t>(8), 0x1234);
}

TEST(FileBytesTest, NothingOutsideIsReadOrWritten) {
    auto bytes = eightBytes();
    EXPECT_EQ(refusalOf([&] { (void)bytes.read<std::uint32_t>(5); }),
              "eight: ends at 0x8, before the 4 bytes at 0x5");
    EXPECT_EQ(refusalOf([&] { bytes.write(8, std::uint8_t{0}); }),
              "eight: ends at 0x8, before the 1 bytes at 0x8");
    EXPECT_EQ(refusalOf([&] { (void)bytes.range(~0ULL, 2); }),
              "eight: ends at 0x8, before the 2 bytes at 0xffffffffffffffff");
    EXPECT_EQ(refusalOf([&] { (void)bytes.range(2, ~0ULL); }),
              "eight: ends at 0x8, before the 18446744073709551615 bytes at 0x2");
    EXPECT_NE(refusalOf([&] { bytes.truncate(9); }), "");
    EXPECT_EQ(bytes.range(8, 0).size(), 0U);
}

TEST(FileBytesTest, TextsEndWithAZeroOrTheirField) {
    FileBytes bytes("texts", {});
    EXPECT_EQ(bytes.appendText("one"), 0U);
    EXPECT_EQ(bytes.appendText("two"), 4U);
    EXPECT_EQ(bytes.text(0), "one");
    EXPECT_EQ(bytes.text(5), "wo");
    EXPECT_EQ(bytes.fieldText(4, 2), "tw");
    EXPECT_EQ(bytes.fieldText(4, 4), "two");
    bytes.truncate(7);
    EXPECT_EQ(refusalOf([&] { (void)bytes.text(4); }), "texts: the text at 0x4 has no end");
    EXPECT_NE(refusalOf([&] { (void)bytes.text(7); }), "");
}

TEST(FileBytesTest, PaddingIsZeros) {
    FileBytes bytes("padded", {1});
    bytes.padTo(4);
    EXPECT_EQ(bytes.read<std::uint32_t>(0), 1U);
    bytes.padTo(4);
    EXPECT_EQ(bytes.size(), 4U);
}

TEST(FileBytesTest, FilesComeAndGoWhole) {
    const auto path = testing::TempDir() + "FileBytesTest." + std::to_string(getpid());
    eightBytes().save(path);
    const auto loaded = FileBytes::load(path);
    EXPECT_EQ(loaded.name(), path);
    EXPECT_TRUE(std::ranges::equal(loaded.all(), eightBytes().all()));
    EXPECT_EQ(std::remove(path.c_str()), 0);
    EXPECT_EQ(refusalOf([&] { (void)FileBytes::load(path); }), path + ": cannot be read");
    EXPECT_EQ(refusalOf([] { eightBytes().save("/nowhere/at/all"); }), "/nowhere/at/all: cannot be written");
}
