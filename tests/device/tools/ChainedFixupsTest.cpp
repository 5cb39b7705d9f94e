#include "ChainedFixups.h"

#include "MachOFormat.h"
#include "TestImages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace {

using Fixup = ChainedFixups::Fixup;

constexpr PointerSchema schema{
    .key = PointerSchema::Key::DataB, .addressDiversified = true, .diversity = 0x1234};

/// The refusal of the linked image with a number of its fixups changed; `field` counts from their header.
template <class T>
std::string refusalWith(std::uint64_t field, T value) {
    auto image = TestImages::linked("SignedPointers");
    const auto header = image.bytes().read<std::uint32_t>(
        TestImages::field(image, MachOFormat::chainedFixups, MachOFormat::dataOffsetField));
    image.bytes().write(header + field, value);
    return refusalOf([&] { (void)ChainedFixups(image); });
}

/// The same for the part that is about the segment __DATA_CONST.
template <class T>
std::string refusalWithSegment(std::uint64_t field, T value) {
    auto image = TestImages::linked("SignedPointers");
    image.bytes().write(ChainedFixups(image).segmentStarts().front() + field, value);
    return refusalOf([&] { (void)ChainedFixups(image); });
}

std::string refusalOfEncoding(const Fixup& fixup) {
    return refusalOf([&] { (void)ChainedFixups::encodedSigned(fixup); });
}

} // namespace

TEST(ChainedFixupsTest, TheLinkersChainsAreRead) {
    const auto image = TestImages::linked("SignedPointers");
    const ChainedFixups chains(image);
    ASSERT_EQ(chains.fixups().size(),
              10U); // eight of the table, and one each of the private and the shared one
    auto bound = 0;
    for (const auto& fixup : chains.fixups()) {
        EXPECT_FALSE(fixup.schema);
        if (fixup.import) {
            EXPECT_EQ(chains.imports()[*fixup.import].name, "_imported");
            bound += static_cast<int>(fixup.addend);
        }
    }
    EXPECT_EQ(bound, 16 + 8);
}

TEST(ChainedFixupsTest, OtherFormatsAreRefused) {
    EXPECT_THAT(refusalWith(0, std::uint32_t{1}), testing::HasSubstr("has fixups of version 1"));
    EXPECT_THAT(refusalWith(24, std::uint32_t{1}), testing::HasSubstr("compressed by method 1"));
    EXPECT_THAT(refusalWith(20, std::uint32_t{3}), testing::HasSubstr("has imports of format 3"));
    EXPECT_THAT(refusalWith(16, std::uint32_t{0}), testing::HasSubstr("to import 0 of 0"));
    EXPECT_THAT(refusalWithSegment(4, std::uint16_t{0x1000}), testing::HasSubstr("pages of 4096 bytes"));
    EXPECT_THAT(refusalWithSegment(6, std::uint16_t{1}), testing::HasSubstr("has pointers of format 1;"));
    EXPECT_THAT(refusalWithSegment(22, std::uint16_t{0x8001}),
                testing::HasSubstr("chain that starts at 0x8001"));
}

TEST(ChainedFixupsTest, SignedPointersAreWrittenAsTheLoaderReadsThem) {
    EXPECT_EQ(ChainedFixups::encodedSigned({.distanceToNext = 16, .target = 0x12345678, .schema = schema}),
              0x8017'1234'1234'5678U);
    EXPECT_EQ(ChainedFixups::encodedSigned({.import = 0xABCDEF, .schema = schema}), 0xC007'1234'00AB'CDEFU);
}

TEST(ChainedFixupsTest, OtherPointersAreWrittenAsTheLoaderReadsThem) {
    EXPECT_EQ(ChainedFixups::encodedSigned({.distanceToNext = 8, .target = 0x412345678, .topByte = 0x80}),
              0x000C'0004'1234'5678U);
    EXPECT_EQ(ChainedFixups::encodedSigned({.import = 3, .addend = 8}), 0x4000'0008'0000'0003U);
    EXPECT_EQ(ChainedFixups::encodedSigned({.import = 3, .addend = -1}), 0x4007'FFFF'0000'0003U);
}

TEST(ChainedFixupsTest, WhatThereIsNoRoomForIsRefused) {
    EXPECT_THAT(refusalOfEncoding({.address = 4}), testing::HasSubstr("the pointer at 0x4 or the next"));
    EXPECT_NE(refusalOfEncoding({.distanceToNext = 12}), "");
    EXPECT_NE(refusalOfEncoding({.import = 1U << 24U}), "");
    EXPECT_NE(refusalOfEncoding({.import = 1, .addend = 1 << 18}), "");
    EXPECT_NE(refusalOfEncoding({.import = 1, .addend = 1, .schema = schema}), "");
    EXPECT_NE(refusalOfEncoding({.target = 1ULL << 32U, .schema = schema}), "");
    EXPECT_NE(refusalOfEncoding({.topByte = 1, .schema = schema}), "");
    EXPECT_NE(refusalOfEncoding({.target = 1ULL << 43U}), "");
    EXPECT_NE(refusalOfEncoding({.distanceToNext = 0x4000}), "");
}
