#include "ScaledPicture.h"

#include "BlankPicture.h"

#include <gtest/gtest.h>

#include <random>

namespace {

QImage randomPicture(QSize size) {
    auto image = blank(size);
    std::mt19937 random(7); // NOLINT(*-random-generator-seed,*-msc*): the same picture each time
    std::uniform_int_distribution component(0, 255);
    for (auto y = 0; y < size.height(); ++y) {
        for (auto x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(component(random), component(random), component(random)));
    }
    return image;
}

/// What is seen in a picture of that size.
QImage seen(const QImage& picture, const QRectF& place, QSize size) {
    auto target = blank(size);
    ScaledPicture(PictureRows(picture), place).copyTo(target, target.rect());
    return target;
}

} // namespace

TEST(ScaledPictureTest, IsItselfAtItsOwnSize) {
    const auto picture = randomPicture({13, 9});
    EXPECT_EQ(seen(picture, {0, 0, 13, 9}, {13, 9}), picture);
}

TEST(ScaledPictureTest, MixesTheNearestPixels) {
    auto picture = blank({2, 2}, Qt::black);
    picture.setPixelColor(1, 0, QColor(128, 0, 0));
    picture.setPixelColor(1, 1, QColor(128, 0, 0));
    picture.setPixelColor(0, 1, QColor(0, 64, 0));
    const auto larger = seen(picture, {0, 0, 4, 4}, {4, 4});
    EXPECT_EQ(larger.pixelColor(0, 0).red(), 0);
    EXPECT_EQ(larger.pixelColor(1, 0).red(), 32);
    EXPECT_EQ(larger.pixelColor(2, 0).red(), 96);
    EXPECT_EQ(larger.pixelColor(3, 0).red(), 128);
    EXPECT_EQ(larger.pixelColor(0, 1).green(), 16);
    EXPECT_EQ(larger.pixelColor(0, 3).green(), 64);
}

TEST(ScaledPictureTest, ShowsMoreOfItsEdgesBeyondThem) {
    auto picture = blank({3, 1}, Qt::blue);
    picture.setPixelColor(0, 0, Qt::red);
    const auto image = seen(picture, {2, 2, 3, 1}, {8, 5});
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(2, 4), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(7, 2), QColor(Qt::blue));
}

TEST(ScaledPictureTest, APixelIsTheSameWhateverPartIsAskedFor) {
    const auto picture = randomPicture({90, 70});
    for (const auto& place : {QRectF(3, -2, 85, 66), QRectF(-4.5, 6.25, 131, 80.5), QRectF(0, 0, 46, 35)}) {
        const auto whole = seen(picture, place, {100, 60});
        for (const auto& part : {QRect(0, 0, 1, 60), QRect(40, 10, 33, 20), QRect(99, 59, 1, 1)}) {
            auto target = blank({100, 60});
            ScaledPicture(PictureRows(picture), place).copyTo(target, part);
            EXPECT_EQ(target.copy(part), whole.copy(part));
            auto apart = blank(part.size());
            ScaledPicture(PictureRows(picture), place).copyTo(apart, part, part.topLeft());
            EXPECT_EQ(apart, whole.copy(part));
        }
    }
}

TEST(ScaledPictureTest, WhatIsOpaqueRemainsSo) {
    const auto image = seen(randomPicture({50, 50}), {1.3, 2.7, 47.1, 31.9}, {48, 33});
    for (auto y = 0; y < image.height(); ++y) {
        for (auto x = 0; x < image.width(); ++x)
            EXPECT_EQ(qAlpha(image.pixel(x, y)), 255);
    }
}

TEST(ScaledPictureTest, ASinglePixelFillsItsPlace) {
    EXPECT_EQ(seen(blank({1, 1}, Qt::green), {0, 0, 4, 3}, {4, 3}), blank({4, 3}, Qt::green));
}
