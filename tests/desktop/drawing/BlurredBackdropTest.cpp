#include "BlurredBackdrop.h"

#include <gtest/gtest.h>

#include <QColor>

namespace {

/// The whole of what is seen of an image through a backdrop of its size.
QImage seenThrough(const QImage& image, double sigma, double saturation) {
    QImage seen(image.size(), QImage::Format_ARGB32_Premultiplied);
    BlurredBackdrop(image.convertToFormat(seen.format()), sigma, saturation, Qt::transparent, image.size())
        .copyTo(seen, seen.rect());
    return seen;
}

} // namespace

TEST(BlurredBackdropTest, SaturationMovesColorsAwayFromGray) {
    QImage image(1, 1, QImage::Format_RGB32);
    image.fill(QColor(120, 100, 90));
    const auto color = seenThrough(image, 0, 1.8).pixelColor(0, 0);
    EXPECT_GT(color.red(), 120);
    EXPECT_LT(color.blue(), 90);
    EXPECT_NEAR(color.red() - color.green(), 1.8 * 20, 1.5);
    EXPECT_EQ(seenThrough(image, 0, 1).pixelColor(0, 0), QColor(120, 100, 90));
    const auto none = seenThrough(image, 0, 0).pixelColor(0, 0);
    EXPECT_EQ(none.red(), none.blue());
}

TEST(BlurredBackdropTest, SaturationLeavesGraysAndStaysWithinTheAlpha) {
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(128, 128, 128));
    EXPECT_EQ(seenThrough(image, 0, 3).pixelColor(0, 0), QColor(128, 128, 128));
    image.fill(QColor(255, 0, 0, 100));
    const auto pixel = *reinterpret_cast<const QRgb*>(seenThrough(image, 0, 3).constScanLine(0));
    EXPECT_EQ(qAlpha(pixel), 100);
    EXPECT_EQ(qRed(pixel), 100);
    EXPECT_EQ(qGreen(pixel), 0);
}

TEST(BlurredBackdropTest, ABackdropIsBlurredAndSaturatedWhateverItsWidth) {
    QImage image(200, 120, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(120, 100, 90));
    const auto expected = seenThrough(image, 0, 1.8).pixelColor(0, 0);
    for (const double sigma : {2.0, 6.0, 60.0}) {
        const auto seen = seenThrough(image, sigma, 1.8);
        EXPECT_EQ(seen.size(), image.size());
        for (const auto place : {QPoint(0, 0), QPoint(100, 60), QPoint(199, 119)}) {
            EXPECT_NEAR(seen.pixelColor(place).red(), expected.red(), 1) << sigma;
            EXPECT_NEAR(seen.pixelColor(place).blue(), expected.blue(), 1) << sigma;
            EXPECT_EQ(seen.pixelColor(place).alpha(), 255) << sigma;
        }
    }
}

TEST(BlurredBackdropTest, AWideBackdropHasItsMeanInTheMiddle) {
    QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    for (auto y = 0; y < image.height(); ++y) {
        for (auto x = 0; x < 200; ++x)
            image.setPixelColor(x, y, Qt::black);
    }
    const auto seen = seenThrough(image, 20, 1);
    EXPECT_NEAR(seen.pixelColor(200, 150).red(), 128, 5);
    EXPECT_LT(seen.pixelColor(100, 150).red(), 3);
    EXPECT_GT(seen.pixelColor(300, 150).red(), 252);
    for (auto x = 101; x < 300; ++x)
        EXPECT_GE(seen.pixelColor(x, 150).red(), seen.pixelColor(x - 1, 150).red());
}

TEST(BlurredBackdropTest, ATintLiesOverAllOfIt) {
    QImage image(30, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(200, 100, 40));
    const QColor tint(10, 250, 120, 51);
    QImage seen(90, 90, image.format());
    const auto look = [&](const QColor& over) {
        BlurredBackdrop(image, 4, 1, over, seen.size()).copyTo(seen, seen.rect());
        return *reinterpret_cast<const QRgb*>(seen.constScanLine(40));
    };
    EXPECT_EQ(look(tint), qRgb(162, 130, 56));
    EXPECT_EQ(look(Qt::transparent), qRgb(200, 100, 40));
    image.fill(Qt::transparent);
    EXPECT_EQ(look(tint), qRgba(2, 50, 24, 51));
}

TEST(BlurredBackdropTest, APartIsThatOfTheWhole) {
    QImage image(40, 30, QImage::Format_ARGB32_Premultiplied);
    for (auto y = 0; y < image.height(); ++y) {
        for (auto x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor(x * 6, y * 8, (x * y) % 256));
    }
    const QSize size(320, 240);
    const BlurredBackdrop backdrop(image, 7, 1.8, Qt::transparent, size);
    QImage whole(size, QImage::Format_ARGB32_Premultiplied);
    backdrop.copyTo(whole, whole.rect());
    const QRect rect(33, 21, 150, 97);
    const QPoint corner(-30, -20);
    QImage part(200, 200, QImage::Format_ARGB32_Premultiplied);
    backdrop.copyTo(part, rect, corner);
    EXPECT_EQ(part.copy(rect.translated(corner)), whole.copy(rect));
    EXPECT_NE(whole.pixel(0, 0), whole.pixel(300, 200));
}

TEST(BlurredBackdropTest, IsOpaqueWhereAllBehindItIs) {
    QImage image(30, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    EXPECT_TRUE(BlurredBackdrop(image, 8, 1.8, Qt::transparent, {90, 90}).isOpaque());
    image.setPixel(15, 15, qRgba(0, 0, 0, 0));
    EXPECT_FALSE(BlurredBackdrop(image, 2, 1.8, Qt::transparent, {90, 90}).isOpaque());
}
