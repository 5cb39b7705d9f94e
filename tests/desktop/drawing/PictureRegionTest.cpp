#include "PictureRegion.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <sanitizer/asan_interface.h>

#include <array>
#include <cstddef>
#include <cstring>

namespace {

constexpr auto portion = PictureRegion::portion;
constexpr std::size_t portions = 4;
constexpr auto part = portion / 4;
constexpr std::size_t page = 4096;
constexpr auto everything = portions * portion;

/// Whether the system has brought the page that begins there.
bool hasMemory(uchar* place) {
    unsigned char resident = 0;
    return mincore(place, page, &resident) == 0 && (resident & 1U) != 0;
}

class PictureRegionTest : public testing::Test {
protected:
    uchar* takeFilled(std::size_t bytes, int value) {
        auto* const block = region_.take(bytes);
        EXPECT_NE(block, nullptr);
        if (block != nullptr)
            std::memset(block, value, bytes);
        return block;
    }

    PictureRegion region_{portions * portion};
};

TEST_F(PictureRegionTest, BlocksLieApart) {
    const auto* const first = takeFilled(part + 1, 1);
    const auto* const second = takeFilled(part, 2);
    EXPECT_EQ(first[0], 1);
    EXPECT_EQ(first[part], 1);
    EXPECT_EQ(second[0], 2);
    EXPECT_EQ(second[part - 1], 2);
    EXPECT_EQ(second - first, part + page); // each begins a page
}

#ifdef __SANITIZE_ADDRESS__
TEST_F(PictureRegionTest, TheAddressSanitizerNoticesWhoWritesBeyondABlockOrTooLate) {
    const auto* const block = takeFilled(part + 1, 1);
    EXPECT_FALSE(__asan_address_is_poisoned(block + part));
    EXPECT_TRUE(__asan_address_is_poisoned(block + part + 1));
    region_.giveBack(block, part + 1);
    EXPECT_TRUE(__asan_address_is_poisoned(block));
    EXPECT_EQ(takeFilled(part, 2), block);
}
#endif

TEST_F(PictureRegionTest, NothingIsTakenBeyondItsEnd) {
    EXPECT_EQ(region_.take(portions * portion + 1), nullptr);
    const auto* const all = region_.take(portions * portion);
    EXPECT_NE(all, nullptr);
    EXPECT_EQ(region_.take(1), nullptr);
    EXPECT_EQ(region_.readyBytes(), 0U);
    EXPECT_FALSE(region_.prepare(everything));
    region_.giveBack(all, portions * portion);
    EXPECT_EQ(region_.take(portions * portion), all);
}

TEST_F(PictureRegionTest, WhatIsGivenBackJoinsItsNeighboursInAnyOrder) {
    constexpr std::array<std::array<std::size_t, 3>, 6> orders{
        {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}}};
    for (const auto& order : orders) {
        const std::array blocks{region_.take(part), region_.take(part), region_.take(part)};
        for (const auto place : order)
            region_.giveBack(blocks[place], part);
        auto* const joined = region_.take(3 * part);
        EXPECT_EQ(joined, blocks[0]);
        region_.giveBack(joined, 3 * part);
        EXPECT_EQ(region_.readyBytes(), portion);
    }
}

TEST_F(PictureRegionTest, TakesTheShortestThatIsThere) {
    const auto* const longer = region_.take(2 * part);
    static_cast<void>(region_.take(part));
    const auto* const shorter = region_.take(part);
    static_cast<void>(region_.take(part));
    region_.giveBack(longer, 2 * part);
    region_.giveBack(shorter, part);
    EXPECT_EQ(region_.take(part), shorter);
    EXPECT_EQ(region_.take(2 * part), longer);
}

TEST_F(PictureRegionTest, TakesMemoryThatIsThereBeforeAddressesThatFitBetter) {
    const auto* const lower = region_.take(2 * portion);
    const auto* const upper = region_.take(portion); // which leaves one portion that was never used
    region_.giveBack(lower, 2 * portion);
    EXPECT_TRUE(region_.isReadyFor(portion));
    EXPECT_EQ(region_.take(portion), lower);
    EXPECT_NE(upper, nullptr);
}

TEST_F(PictureRegionTest, IsReadyForWhatWasPrepared) {
    EXPECT_FALSE(region_.isReadyFor(1));
    EXPECT_TRUE(region_.prepare(everything));
    EXPECT_TRUE(region_.isReadyFor(portion));
    EXPECT_FALSE(region_.isReadyFor(portion + 1));
    EXPECT_EQ(region_.readyBytes(), portion);
    EXPECT_TRUE(region_.prepare(everything));
    EXPECT_TRUE(region_.isReadyFor(2 * portion));
    auto* const block = region_.take(2 * portion);
    EXPECT_TRUE(hasMemory(block));
    EXPECT_TRUE(hasMemory(block + 2 * portion - page));
    EXPECT_EQ(region_.readyBytes(), 0U);
}

TEST_F(PictureRegionTest, KeepsAndPreparesWhatALargePictureHasRoomIn) {
    const auto* const shorter = region_.take(portion);
    static_cast<void>(region_.take(portion));
    const auto* const longer = region_.take(2 * portion);
    region_.giveBack(shorter, portion);
    region_.giveBack(longer, 2 * portion);
    region_.giveToSystem(2 * portion);
    EXPECT_TRUE(region_.isReadyFor(2 * portion));
    region_.giveToSystem(0);
    EXPECT_FALSE(region_.isReadyFor(1));
    EXPECT_TRUE(region_.prepare(everything));
    EXPECT_TRUE(region_.prepare(everything));
    EXPECT_TRUE(region_.isReadyFor(2 * portion));
}

TEST_F(PictureRegionTest, WhatIsPreparedTakesTheMemoryOfShorterSpans) {
    auto* const shorter = takeFilled(portion, 1);
    auto* const used = takeFilled(portion, 2);
    region_.giveBack(shorter, portion);
    EXPECT_TRUE(region_.prepare(2 * portion));
    EXPECT_TRUE(hasMemory(shorter));
    EXPECT_EQ(region_.bytesThere(), 3 * portion);
    EXPECT_TRUE(region_.prepare(2 * portion));
    EXPECT_FALSE(hasMemory(shorter));
    EXPECT_TRUE(region_.isReadyFor(2 * portion));
    EXPECT_EQ(region_.readyBytes(), 2 * portion);
    EXPECT_EQ(region_.bytesThere(), 3 * portion);
    EXPECT_EQ(used[0], 2);
    EXPECT_FALSE(region_.prepare(0));
    EXPECT_EQ(region_.readyBytes(), 2 * portion);
}

TEST_F(PictureRegionTest, GivesWhatIsTooMuchToTheSystem) {
    auto* const first = takeFilled(portion / 2, 1);
    auto* const second = takeFilled(2 * portion, 2);
    region_.giveBack(second, 2 * portion);
    EXPECT_EQ(region_.readyBytes(), 2 * portion + portion / 2);
    region_.giveToSystem(2 * portion);
    EXPECT_EQ(region_.readyBytes(), portion + portion / 2);
    EXPECT_TRUE(hasMemory(second));
    EXPECT_FALSE(hasMemory(first + 2 * portion));
    region_.giveToSystem(0);
    EXPECT_EQ(region_.readyBytes(), portion / 2); // of the portion that something is taken of
    EXPECT_EQ(first[0], 1);
}

} // namespace
