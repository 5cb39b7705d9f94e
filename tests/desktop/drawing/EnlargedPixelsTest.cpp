#include "EnlargedPixels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int pixelsWide = 12;
constexpr int pixelsHigh = 10;

/// The furthest that a slope which is enlarged is from the true one, between the middles of its outer pixels.
/// \param across what it rises by from one pixel to the next \param down likewise
double furthestFromSlope(double across, double down, int factor) {
    constexpr double lowest = 100;
    PixelComponents pixels{.values = {}, .rowCount = pixelsHigh, .rowLength = pixelsWide, .channels = 1};
    for (int y = 0; y < pixelsHigh; ++y) {
        for (int x = 0; x < pixelsWide; ++x)
            pixels.values.push_back(static_cast<float>(lowest + x * across + y * down));
    }
    QImage enlarged(pixelsWide * factor, pixelsHigh * factor, QImage::Format_Alpha8);
    EnlargedPixels(pixels, enlarged.size()).copyTo(enlarged, enlarged.rect());
    const auto place = [factor](int index) { return (index + 0.5) / factor - 0.5; };
    double furthest = 0;
    for (int y = factor; y < enlarged.height() - factor; ++y) {
        for (int x = factor; x < enlarged.width() - factor; ++x) {
            const auto wanted = lowest + place(x) * across + place(y) * down;
            furthest = std::max(furthest, std::abs(wanted - enlarged.constScanLine(y)[x]));
        }
    }
    return furthest;
}

} // namespace

/// Where steps are coarser, the edges between two values are stairs that are seen.
TEST(EnlargedPixelsTest, ASlowSlopeHasEachValueWhereItIsNearest) {
    for (const int factor : {8, 13, 16, 24}) {
        EXPECT_LT(furthestFromSlope(0.11, 0.07, factor), 0.54) << factor;
        EXPECT_LT(furthestFromSlope(-0.3, 0.2, factor), 0.55) << factor;
    }
}

TEST(EnlargedPixelsTest, ASteepSlopeIsEvenEnough) {
    for (const int factor : {8, 13, 16, 24})
        EXPECT_LT(furthestFromSlope(5, 8, factor), 0.8) << factor;
}
