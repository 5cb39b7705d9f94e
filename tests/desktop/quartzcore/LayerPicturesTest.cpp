#include "LayerPictures.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr auto half = LayerPictures::capacity / 2;

/// A picture of half of what is kept, and a little more.
QImage large() {
    constexpr auto width = 1024;
    return {width, static_cast<int>(half / width / 4) + 1, QImage::Format_ARGB32_Premultiplied};
}

} // namespace

TEST(LayerPicturesTest, KeepsAPictureThatOnePaintingDidNotUse) {
    LayerPictures pictures;
    pictures.use(1).picture = large();
    pictures.paintingEnded();
    pictures.paintingEnded();
    EXPECT_FALSE(pictures.use(1).picture.isNull());
    EXPECT_FALSE(pictures.picture(1).isNull());
}

TEST(LayerPicturesTest, DropsWhatWasUnusedLongestBeyondItsCapacity) {
    LayerPictures pictures;
    for (const auto identity : {1U, 2U, 3U}) {
        pictures.use(identity).picture = large();
        pictures.paintingEnded();
    }
    EXPECT_FALSE(pictures.use(3).picture.isNull());
    EXPECT_TRUE(pictures.use(2).picture.isNull());
    EXPECT_TRUE(pictures.use(1).picture.isNull());
}

TEST(LayerPicturesTest, KeepsAllThatAPaintingUsed) {
    LayerPictures pictures;
    for (const auto identity : {1U, 2U, 3U})
        pictures.use(identity).picture = large();
    pictures.paintingEnded();
    for (const auto identity : {1U, 2U, 3U})
        EXPECT_FALSE(pictures.use(identity).picture.isNull());
}

TEST(LayerPicturesTest, DropsWhatWasNotUsedForLong) {
    LayerPictures pictures;
    pictures.use(1).picture = QImage(8, 8, QImage::Format_ARGB32_Premultiplied);
    pictures.use(2).picture = QImage(8, 8, QImage::Format_ARGB32_Premultiplied);
    for (auto painting = std::uint64_t{0}; painting <= LayerPictures::paintingsUnused; ++painting) {
        EXPECT_FALSE(pictures.use(1).picture.isNull());
        EXPECT_FALSE(pictures.picture(2).isNull());
        pictures.paintingEnded();
    }
    pictures.paintingEnded();
    EXPECT_FALSE(pictures.use(1).picture.isNull());
    EXPECT_TRUE(pictures.use(2).picture.isNull());
}

TEST(LayerPicturesTest, WhatIsNotUsedForAWhileGivesItsMemory) {
    LayerPictures pictures;
    pictures.use(1).picture = pictures.make({600, 600});
    pictures.use(2).picture = pictures.make({600, 600});
    std::vector<QImage> others;
    const auto* const spare = pictures.picture(2).constBits();
    for (auto painting = std::uint64_t{0}; painting <= LayerPictures::paintingsSpare; ++painting) {
        static_cast<void>(pictures.use(1));
        others.push_back(pictures.make({600, 590}));
        EXPECT_NE(others.back().constBits(), spare);
        EXPECT_FALSE(pictures.picture(2).isNull());
        pictures.paintingEnded();
    }
    static_cast<void>(pictures.use(1));
    const auto other = pictures.make({600, 590});
    EXPECT_EQ(other.constBits(), spare);
    EXPECT_FALSE(pictures.use(1).picture.isNull());
    EXPECT_TRUE(pictures.use(2).picture.isNull());
}
