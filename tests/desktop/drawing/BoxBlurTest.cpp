#include "BoxBlur.h"

#include "Steps.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

constexpr std::size_t middle = 50;

PixelComponents rowWithPulse(std::size_t channels = 1) {
    PixelComponents pixels{std::vector<float>((2 * middle + 1) * channels), 1, (2 * middle + 1) * channels,
                           channels};
    pixels.values[middle * channels] = 1;
    return pixels;
}

double sumOf(const PixelComponents& pixels) {
    return std::accumulate(pixels.values.begin(), pixels.values.end(), 0.0);
}

double varianceOf(const PixelComponents& row) {
    double variance = 0;
    for (std::size_t index = 0; index < row.values.size(); ++index) {
        const double distance = static_cast<double>(index) - static_cast<double>(middle);
        variance += distance * distance * static_cast<double>(row.values[index]);
    }
    return variance;
}

} // namespace

TEST(BoxBlurTest, HasExactlyTheVarianceThatIsAskedFor) {
    for (const double sigma : steps(0.1, 12, 0.3)) {
        auto row = rowWithPulse();
        BoxBlur(sigma, BlurEdges::Transparent).blurRows(row);
        EXPECT_NEAR(varianceOf(row), sigma * sigma, 1e-3 * sigma * sigma) << sigma;
        EXPECT_NEAR(sumOf(row), 1, 1e-5) << sigma;
    }
}

TEST(BoxBlurTest, ColumnsAreBlurredAsRowsAre) {
    auto row = rowWithPulse();
    auto column = rowWithPulse();
    std::swap(column.rowCount, column.rowLength);
    BoxBlur(2.3, BlurEdges::Extended).blurRows(row);
    BoxBlur(2.3, BlurEdges::Extended).blurColumns(column);
    EXPECT_EQ(row.values, column.values);
}

TEST(BoxBlurTest, ChannelsDoNotMix) {
    auto row = rowWithPulse(4);
    const auto plain = [] {
        auto one = rowWithPulse();
        BoxBlur(2, BlurEdges::Transparent).blurRows(one);
        return one;
    }();
    BoxBlur(2, BlurEdges::Transparent).blurRows(row);
    for (std::size_t index = 0; index < row.values.size(); ++index)
        EXPECT_EQ(row.values[index], index % 4 == 0 ? plain.values[index / 4] : 0) << index;
}

TEST(BoxBlurTest, ExtendedEdgesKeepAnEvenAreaEven) {
    PixelComponents even{std::vector<float>(20, 7.0F), 2, 10, 1};
    BoxBlur(6, BlurEdges::Extended).blurRows(even);
    BoxBlur(6, BlurEdges::Extended).blurColumns(even);
    for (const float value : even.values)
        EXPECT_NEAR(value, 7, 1e-4);
}

TEST(BoxBlurTest, TransparentEdgesLoseWhatLeaves) {
    PixelComponents even{std::vector<float>(20, 7.0F), 1, 20, 1};
    BoxBlur(2, BlurEdges::Transparent).blurRows(even);
    EXPECT_LT(even.values.front(), 5);
    EXPECT_NEAR(even.values[10], 7, 1e-4);
    EXPECT_NEAR(even.values.front(), even.values.back(), 1e-4);
}
