#include "PixelComponents.h"

#include "PixelRows.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <span>

namespace {

std::span<const uchar> row(const QImage& image, int y) {
    return {image.constScanLine(y), static_cast<std::size_t>(image.width() * image.depth() / CHAR_BIT)};
}

/// Where a part of a row or column begins.
int edgeOf(int part, int parts, int size) {
    return static_cast<int>(std::lround(static_cast<double>(part) * size / parts));
}

/// The means of an image's parts. \param sums of some of its rows, in columns
void appendMeans(const std::vector<std::uint16_t>& sums, int rows, int width, int parts,
                 PixelComponents& means) {
    for (int part = 0; part < parts; ++part) {
        const auto first = edgeOf(part, parts, width);
        const auto last = edgeOf(part + 1, parts, width);
        for (std::size_t channel = 0; channel < means.channels; ++channel) {
            std::uint32_t sum = 0;
            for (int x = first; x < last; ++x)
                sum += sums[static_cast<std::size_t>(x) * means.channels + channel];
            means.values.push_back(static_cast<float>(sum) / static_cast<float>((last - first) * rows));
        }
    }
}

} // namespace

PixelComponents PixelComponents::of(const QImage& image) {
    PixelComponents pixels{.values = {},
                           .rowCount = static_cast<std::size_t>(image.height()),
                           .rowLength = row(image, 0).size(),
                           .channels = static_cast<std::size_t>(image.depth() / CHAR_BIT)};
    pixels.values.reserve(pixels.rowCount * pixels.rowLength);
    for (int y = 0; y < image.height(); ++y)
        pixels.values.insert(pixels.values.end(), row(image, y).begin(), row(image, y).end());
    return pixels;
}

PixelComponents PixelComponents::reduced(const QImage& image, QSize size) {
    const auto channels = static_cast<std::size_t>(image.depth() / CHAR_BIT);
    PixelComponents means{.values = {},
                          .rowCount = static_cast<std::size_t>(size.height()),
                          .rowLength = static_cast<std::size_t>(size.width()) * channels,
                          .channels = channels};
    means.values.reserve(means.rowCount * means.rowLength);
    std::vector<std::uint16_t> sums(static_cast<std::size_t>(image.width()) * channels);
    for (int part = 0; part < size.height(); ++part) {
        const auto first = edgeOf(part, size.height(), image.height());
        const auto last = edgeOf(part + 1, size.height(), image.height());
        std::ranges::fill(sums, std::uint16_t{0});
        for (int y = first; y < last; ++y)
            PixelRows::add(row(image, y), sums);
        appendMeans(sums, last - first, image.width(), size.width(), means);
    }
    return means;
}

QImage PixelComponents::toImage() const {
    constexpr float half = 0.5F;
    QImage image(static_cast<int>(rowLength / channels), static_cast<int>(rowCount),
                 QImage::Format_ARGB32_Premultiplied);
    for (std::size_t y = 0; y < rowCount; ++y)
        std::ranges::transform(std::span(values).subspan(y * rowLength, rowLength),
                               image.scanLine(static_cast<int>(y)),
                               [](float value) { return static_cast<uchar>(value + half); });
    return image;
}
