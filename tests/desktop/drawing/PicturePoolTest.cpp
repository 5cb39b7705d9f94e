#include "PicturePool.h"

#include "PictureRegion.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace {

constexpr QSize large(1000, 1000);
constexpr auto largeBytes = std::size_t{4} * 1000 * 1000;

/// At least as many bytes of pictures.
std::vector<QImage> picturesOf(std::size_t bytes, PicturePool& pool) {
    std::vector<QImage> pictures;
    for (std::size_t made = 0; made < bytes; made += largeBytes)
        pictures.push_back(pool.make(large));
    return pictures;
}

} // namespace

TEST(PicturePoolTest, APictureIsOneAsAnyOther) {
    PicturePool pool;
    for (const auto size : {QSize(3, 5), QSize(300, 300), large, QSize(1000, 1)}) {
        auto picture = pool.make(size);
        EXPECT_EQ(picture.size(), size);
        EXPECT_EQ(picture.format(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::red);
        EXPECT_EQ(picture.pixelColor(size.width() - 1, size.height() - 1), QColor(Qt::red));
        const auto copy = picture;
        picture.fill(Qt::blue);
        EXPECT_EQ(copy.pixelColor(0, 0), QColor(Qt::red));
    }
    EXPECT_TRUE(pool.make({}).isNull());
}

TEST(PicturePoolTest, MemoryGoesFromAPictureToTheNext) {
    PicturePool pool;
    auto picture = std::optional(pool.make(large));
    const auto* const memory = picture->constBits();
    const auto before = pool.keptBytes();
    picture.reset();
    EXPECT_GE(pool.keptBytes(), before + largeBytes);
    EXPECT_TRUE(pool.isReadyFor(large));
    const auto next = pool.make({980, 1000});
    EXPECT_EQ(next.constBits(), memory);
    EXPECT_FALSE(pool.isReadyFor(large));
    EXPECT_NE(pool.make({980, 1000}).constBits(), memory);
}

TEST(PicturePoolTest, SmallerPicturesShareTheMemoryOfALargeOne) {
    PicturePool pool;
    const auto kept = [&pool] {
        const auto picture = pool.make(large);
        return pool.keptBytes() + largeBytes;
    }();
    const auto first = pool.make({1000, 490});
    const auto second = pool.make({1000, 490});
    EXPECT_LT(pool.keptBytes(), kept - largeBytes / 10 * 9);
}

TEST(PicturePoolTest, PreparesBitByBitWhatIsUsual) {
    PicturePool pool;
    EXPECT_TRUE(pool.prepare());
    EXPECT_LT(pool.keptBytes(), PicturePool::prepared / 2);
    EXPECT_FALSE(pool.isReadyFor({1170, 2532}));
    while (pool.prepare()) {
    }
    EXPECT_GE(pool.keptBytes(), PicturePool::usual);
    EXPECT_LT(pool.keptBytes(), PicturePool::usual + PictureRegion::portion);
    EXPECT_TRUE(pool.isReadyFor({1170, 2532}));
}

TEST(PicturePoolTest, PreparesWhatAPageNeedsHoweverMuchIsUsed) {
    PicturePool pool;
    const auto pictures = picturesOf(PicturePool::usual, pool);
    while (pool.prepare()) {
    }
    EXPECT_GE(pool.keptBytes(), PicturePool::prepared);
    EXPECT_LT(pool.keptBytes(), PicturePool::prepared + PictureRegion::portion);
    EXPECT_TRUE(pool.isReadyFor({1170, 2532}));
}

TEST(PicturePoolTest, WhatIsPreparedIsInOnePieceWhateverIsLeftOverElsewhere) {
    PicturePool pool;
    constexpr std::size_t gaps = 4;
    std::vector<QImage> pictures(2 * gaps);
    for (auto& picture : pictures)
        picture = pool.make({2000, 1500});
    for (std::size_t index = 0; index < pictures.size(); index += 2)
        pictures[index] = {};
    EXPECT_GE(pool.keptBytes(), PicturePool::prepared);
    constexpr QSize twoPages(1170, 2 * 2532);
    EXPECT_FALSE(pool.isReadyFor(twoPages));
    while (pool.prepare()) {
    }
    EXPECT_TRUE(pool.isReadyFor(twoPages));
    constexpr auto sharedAtMost = 2 * PictureRegion::portion; // at the ends of a gap, with pictures beside it
    EXPECT_LE(pool.keptBytes(), PicturePool::prepared + gaps * sharedAtMost);
}

TEST(PicturePoolTest, SmallPicturesAreNotKept) {
    PicturePool pool;
    static_cast<void>(pool.make({100, 100}));
    EXPECT_EQ(pool.keptBytes(), 0U);
}

TEST(PicturePoolTest, WhatIsUsualIsKept) {
    PicturePool pool;
    picturesOf(2 * PicturePool::usual, pool).clear();
    EXPECT_LE(pool.keptBytes(), PicturePool::usual);
    EXPECT_GT(pool.keptBytes(), PicturePool::usual - 2 * PictureRegion::portion);
    EXPECT_EQ(pool.allBytes(), PicturePool::usual);
    static_cast<void>(pool.make({6000, 6000})); // which alone is larger
    EXPECT_LE(pool.keptBytes(), PicturePool::usual);
}

TEST(PicturePoolTest, WhileMuchIsUsedNoMoreIsKeptThanItsCapacity) {
    PicturePool pool;
    const auto used = picturesOf(PicturePool::usual, pool);
    picturesOf(2 * PicturePool::capacity, pool).clear();
    EXPECT_LE(pool.keptBytes(), PicturePool::capacity);
    EXPECT_GT(pool.keptBytes(), PicturePool::capacity / 2);
}

TEST(PicturePoolTest, WhatHasNoRoomIsStillAPicture) {
    PicturePool pool;
    std::vector<QImage> pictures;
    for (auto count = 0; count < 3; ++count) {
        pictures.push_back(pool.make({6000, 10000}));
        ASSERT_FALSE(pictures.back().isNull());
    }
    EXPECT_FALSE(pool.isReadyFor({6000, 10000}));
    pictures.back().setPixelColor(5999, 9999, Qt::red);
    EXPECT_EQ(pictures.back().pixelColor(5999, 9999), QColor(Qt::red));
}

TEST(PicturePoolTest, APictureMayOutliveThePool) {
    auto pool = std::make_unique<PicturePool>();
    auto picture = pool->make(large);
    pool.reset();
    picture.fill(Qt::green);
    EXPECT_EQ(picture.pixelColor(999, 999), QColor(Qt::green));
}
