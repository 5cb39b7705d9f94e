#include "GaussianBlur.h"

#include "Ink.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace {

QImage square(int size, int side, const QColor& color = Qt::black) {
    return painted({size, size}, 1, [&](QPainter& painter) {
        painter.fillRect((size - side) / 2, (size - side) / 2, side, side, color);
    });
}

/// The alpha beside a wide straight edge, from 0 to 1, as a true Gaussian has it.
double gaussianEdge(double distanceInside, double sigma) {
    return 0.5 * std::erfc(-distanceInside / (sigma * std::numbers::sqrt2));
}

int alphaAt(const QImage& image, int x, int y) {
    return qAlpha(image.pixel(x, y));
}

} // namespace

TEST(GaussianBlurTest, KeepsAllOfTheInk) {
    for (const double sigma : {0.5, 2.0, 4.0, 5.0, 9.0, 20.0}) {
        const auto image = square(200, 40);
        EXPECT_NEAR(alphaSum(blurred(image, sigma, BlurEdges::Transparent)) / alphaSum(image), 1, 0.02)
            << sigma;
    }
}

TEST(GaussianBlurTest, AnEdgeIsAsSoftAsAGaussianMakesIt) {
    for (const double sigma : {1.0, 2.0, 3.9, 4.1, 6.0, 10.0, 15.0}) {
        const auto image = blurred(square(300, 150), sigma, BlurEdges::Transparent);
        for (int x = 30; x < 120; ++x) {
            const double expected = gaussianEdge(x + 0.5 - 75, sigma);
            EXPECT_NEAR(alphaAt(image, x, 150) / 255.0, expected, 0.02) << sigma << " at " << x;
        }
    }
}

TEST(GaussianBlurTest, IsTheSameInAMirror) {
    for (const double sigma : {1.5, 8.0}) {
        const auto image = blurred(square(101, 31), sigma, BlurEdges::Transparent);
        const auto mirrored = image.mirrored(true, true);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                EXPECT_NEAR(alphaAt(image, x, y), alphaAt(mirrored, x, y), 2) << sigma;
        }
    }
}

TEST(GaussianBlurTest, NoColorExceedsItsAlpha) {
    for (const double sigma : {1.5, 8.0}) {
        const auto image = blurred(square(60, 21, QColor(255, 128, 0, 200)), sigma, BlurEdges::Transparent);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const auto pixel = reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
                EXPECT_LE(qRed(pixel), qAlpha(pixel));
                EXPECT_NEAR(qGreen(pixel), qRed(pixel) / 2.0, 2);
                EXPECT_EQ(qBlue(pixel), 0);
            }
        }
    }
}

TEST(GaussianBlurTest, ExtendedEdgesAreNoDarker) {
    QImage image(90, 70, QImage::Format_RGB32);
    image.fill(QColor(30, 60, 90));
    for (const double sigma : {3.0, 25.0}) {
        const auto result = blurred(image, sigma, BlurEdges::Extended);
        EXPECT_EQ(result.size(), image.size());
        for (const auto corner : {QPoint(0, 0), QPoint(89, 69), QPoint(45, 0), QPoint(45, 35)})
            EXPECT_EQ(result.pixelColor(corner), QColor(30, 60, 90)) << sigma;
    }
}

TEST(GaussianBlurTest, WithoutADeviationNothingChanges) {
    const auto image = square(20, 7, QColor(9, 8, 7, 60));
    EXPECT_EQ(blurred(image, 0, BlurEdges::Transparent), image);
    EXPECT_EQ(blurred(image, -1, BlurEdges::Transparent), image);
}

TEST(GaussianBlurTest, MasksRemainMasksWhateverTheirWidth) {
    QImage mask(37, 21, QImage::Format_Alpha8);
    mask.fill(0);
    mask.scanLine(10)[18] = 255;
    const auto result = blurred(mask, 1, BlurEdges::Transparent);
    EXPECT_EQ(result.format(), QImage::Format_Alpha8);
    EXPECT_NEAR(alphaSum(result), 1, 0.05);
    EXPECT_GT(alphaAt(result, 18, 10), alphaAt(result, 19, 10));
    EXPECT_EQ(alphaAt(result, 17, 10), alphaAt(result, 19, 10));
    EXPECT_EQ(alphaAt(result, 18, 9), alphaAt(result, 18, 11));
}

TEST(GaussianBlurTest, KeepsThePixelRatio) {
    auto image = square(20, 7);
    image.setDevicePixelRatio(3);
    EXPECT_EQ(blurred(image, 2, BlurEdges::Extended).devicePixelRatio(), 3);
}

TEST(GaussianBlurTest, AnEmptyImageIsNoError) {
    EXPECT_TRUE(blurred({}, 3, BlurEdges::Extended).isNull());
}

TEST(GaussianBlurTest, ASinglePixelIsBlurredIntoItself) {
    QImage image(1, 1, QImage::Format_RGB32);
    image.fill(QColor(1, 2, 3));
    EXPECT_EQ(blurred(image, 50, BlurEdges::Extended).pixelColor(0, 0), QColor(1, 2, 3));
}

TEST(GaussianBlurTest, AShapeHasItsColorWhereItIsWide) {
    QPainterPath shape;
    shape.addRect(60, 60, 180, 180);
    for (const double sigma : {3.0, 15.0}) {
        const auto image = blurredShape(shape, {300, 300}, sigma, qRgb(250, 100, 50));
        EXPECT_NEAR(qRed(image.pixel(150, 150)), 250, 2) << sigma;
        EXPECT_NEAR(qBlue(image.pixel(150, 150)), 50, 2) << sigma;
        EXPECT_EQ(qAlpha(image.pixel(2, 150)), 0) << sigma;
        for (auto x = 20; x < 140; ++x)
            EXPECT_NEAR(alphaAt(image, x, 150) / 255.0, gaussianEdge(x + 0.5 - 60, sigma), 0.02)
                << sigma << " at " << x;
    }
}
