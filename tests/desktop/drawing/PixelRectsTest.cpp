#include "PixelRects.h"

#include "BlankPicture.h"

#include <gtest/gtest.h>

TEST(PixelRectsTest, FillsThePixelsOfARegionAndNoOthers) {
    auto image = blank({8, 6}, Qt::white);
    PixelRects::fill(image, QRegion(1, 1, 3, 2) | QRect(6, 4, 2, 2), QColor(10, 20, 30));
    for (auto y = 0; y < 6; ++y) {
        for (auto x = 0; x < 8; ++x) {
            const auto inside = QRect(1, 1, 3, 2).contains(x, y) || QRect(6, 4, 2, 2).contains(x, y);
            EXPECT_EQ(image.pixelColor(x, y), inside ? QColor(10, 20, 30) : QColor(Qt::white))
                << x << ", " << y;
        }
    }
}

TEST(PixelRectsTest, AClearFillLeavesNothing) {
    auto image = blank({2, 2}, Qt::red);
    PixelRects::fill(image, QRect(0, 0, 1, 2), Qt::transparent);
    EXPECT_EQ(image.pixel(0, 1), 0U);
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::red));
}

TEST(PixelRectsTest, AColorThatIsNotOpaqueIsMixedWithWhatIsThere) {
    auto image = blank({40, 2}, QColor(200, 100, 0));
    PixelRects::paintOver(image, QRect(3, 0, 35, 2), QColor(0, 0, 255, 51)); // a fifth
    EXPECT_EQ(image.pixelColor(2, 0), QColor(200, 100, 0));
    EXPECT_EQ(image.pixelColor(38, 1), QColor(200, 100, 0));
    for (const auto x : {3, 19, 37}) {
        EXPECT_EQ(image.pixelColor(x, 1).red(), 160);
        EXPECT_EQ(image.pixelColor(x, 1).green(), 80);
        EXPECT_EQ(image.pixelColor(x, 1).blue(), 51);
        EXPECT_EQ(image.pixelColor(x, 1).alpha(), 255);
    }
}

TEST(PixelRectsTest, WhatIsPaintedOverAClearPixelIsTheColor) {
    auto image = blank({20, 1}, Qt::transparent);
    PixelRects::paintOver(image, QRect(0, 0, 20, 1), QColor(255, 0, 0, 128));
    EXPECT_EQ(*reinterpret_cast<const QRgb*>(image.constScanLine(0)), qRgba(128, 0, 0, 128));
    PixelRects::paintOver(image, QRect(0, 0, 20, 1), Qt::green);
    EXPECT_EQ(image.pixelColor(19, 0), QColor(Qt::green));
}

TEST(PixelRectsTest, CopiesPixelsFromAnotherPlace) {
    auto from = blank({4, 4}, Qt::red);
    from.setPixelColor(1, 2, Qt::green);
    auto image = blank({10, 10}, Qt::white);
    PixelRects::copy(from, image, QRect(5, 6, 2, 2), {5, 5});
    EXPECT_EQ(image.pixelColor(6, 7), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(5, 6), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(7, 7), QColor(Qt::white));
}

TEST(PixelRectsTest, APictureIsPaintedOverFaded) {
    auto image = blank({200, 3}, QColor(200, 100, 0));
    auto over = blank({150, 2}, Qt::transparent);
    for (const auto x : {0, 70, 149}) {
        over.setPixelColor(x, 0, QColor(0, 0, 255));
        over.setPixelColor(x, 1, QColor(0, 0, 255, 102)); // two fifths
    }
    PixelRects::paintOver(image, image.rect(), over, {20, 1}, 1);
    for (const auto x : {20, 90, 169}) {
        EXPECT_EQ(image.pixelColor(x, 0), QColor(200, 100, 0)) << x;
        EXPECT_EQ(image.pixelColor(x, 1), QColor(0, 0, 255)) << x;
        EXPECT_EQ(image.pixelColor(x, 2), QColor(120, 60, 102)) << x;
        EXPECT_EQ(image.pixelColor(x + 1, 1), QColor(200, 100, 0)) << x;
    }
    PixelRects::paintOver(image, QRect(0, 0, 21, 3), over, {0, 0}, 0.2);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(160, 80, 51));
    EXPECT_EQ(image.pixelColor(70, 0), QColor(200, 100, 0));
}

TEST(PixelRectsTest, WhatAMaskLeavesOutIsBroughtBack) {
    auto image = blank({100, 2}, QColor(200, 100, 0));
    const auto before = blank({100, 2}, QColor(0, 0, 250));
    auto mask = blank({100, 2}, Qt::transparent);
    mask.setPixelColor(3, 0, Qt::black);
    mask.setPixelColor(99, 0, QColor(0, 0, 0, 51)); // a fifth
    PixelRects::bringBack(image, QRect(0, 0, 100, 1), before, mask);
    EXPECT_EQ(image.pixelColor(3, 0), QColor(200, 100, 0));
    EXPECT_EQ(image.pixelColor(99, 0), QColor(40, 20, 200));
    EXPECT_EQ(image.pixelColor(50, 0), QColor(0, 0, 250));
    EXPECT_EQ(image.pixelColor(50, 1), QColor(200, 100, 0));
}
