#include "GaussianBlur.h"

#include "BoxBlur.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <numbers>
#include <span>

namespace {

constexpr auto format = QImage::Format_ARGB32_Premultiplied;
constexpr int boxes = 3; ///< in a row, each with a third of the variance

/// An image that is blurred by more pixels is blurred at a fraction of its size, which nobody can tell.
constexpr double finestSigma = 4;

/// What making an image smaller and larger again adds to the variance of its blur, in pixels of the smaller.
constexpr double varianceOfScaling = 0.25;

std::span<const uchar> row(const QImage& image, int y) {
    return {image.constScanLine(y), static_cast<std::size_t>(image.width() * image.depth() / CHAR_BIT)};
}

PixelComponents componentsOf(const QImage& image) {
    PixelComponents pixels{.values = {},
                           .rowCount = static_cast<std::size_t>(image.height()),
                           .rowLength = row(image, 0).size(),
                           .channels = static_cast<std::size_t>(image.depth() / CHAR_BIT)};
    pixels.values.reserve(pixels.rowCount * pixels.rowLength);
    for (int y = 0; y < image.height(); ++y)
        pixels.values.insert(pixels.values.end(), row(image, y).begin(), row(image, y).end());
    return pixels;
}

void setRow(QImage& image, int y, std::span<const float> values) {
    std::ranges::transform(values, image.scanLine(y),
                           [](float value) { return static_cast<uchar>(std::lround(value)); });
}

PixelComponents blurredComponents(const QImage& image, double horizontalSigma, double verticalSigma,
                                  BlurEdges edges) {
    const BoxBlur horizontal(horizontalSigma / std::numbers::sqrt3, edges);
    const BoxBlur vertical(verticalSigma / std::numbers::sqrt3, edges);
    auto pixels = componentsOf(image);
    for (int pass = 0; pass < boxes; ++pass) {
        horizontal.blurRows(pixels);
        vertical.blurColumns(pixels);
    }
    return pixels;
}

void blurAtFullSize(QImage& image, double sigma, BlurEdges edges) {
    const auto pixels = blurredComponents(image, sigma, sigma, edges);
    for (int y = 0; y < image.height(); ++y)
        setRow(image, y,
               std::span(pixels.values)
                   .subspan(static_cast<std::size_t>(y) * pixels.rowLength, pixels.rowLength));
}

int fractionOf(int size, double factor) {
    return std::max(1, static_cast<int>(std::lround(size / factor)));
}

/// A blur's standard deviation once `size` pixels are `smallerSize`.
double sigmaAt(double sigma, int size, int smallerSize) {
    const double smaller = sigma * smallerSize / size;
    return std::sqrt(std::max(0.0, smaller * smaller - varianceOfScaling));
}

/// Where a sample of a larger image is between two of a smaller one.
struct Between {
    std::size_t first;
    std::size_t second;
    float share; ///< of the second

    Between(std::size_t index, std::size_t largerCount, std::size_t count) {
        const double position = (static_cast<double>(index) + 0.5) * static_cast<double>(count) /
                                    static_cast<double>(largerCount) -
                                0.5;
        const double clamped = std::clamp(position, 0.0, static_cast<double>(count - 1));
        first = static_cast<std::size_t>(clamped);
        second = std::min(first + 1, count - 1);
        share = static_cast<float>(clamped - static_cast<double>(first));
    }
};

std::vector<float> mixedRows(const PixelComponents& pixels, const Between& rows) {
    const auto row = [&](std::size_t number) {
        return std::span(pixels.values).subspan(number * pixels.rowLength, pixels.rowLength);
    };
    std::vector<float> mixed(pixels.rowLength);
    std::ranges::transform(row(rows.first), row(rows.second), mixed.begin(),
                           [&](float first, float second) { return first + (second - first) * rows.share; });
    return mixed;
}

/// Fills an image with a smaller one, made larger.
void setEnlarged(QImage& image, const PixelComponents& pixels) {
    const auto width = static_cast<std::size_t>(image.width());
    std::vector<Between> columns;
    columns.reserve(width);
    for (std::size_t x = 0; x < width; ++x)
        columns.emplace_back(x, width, pixels.rowLength / pixels.channels);
    std::vector<float> values(width * pixels.channels);
    for (int y = 0; y < image.height(); ++y) {
        const auto row =
            mixedRows(pixels, Between(static_cast<std::size_t>(y), static_cast<std::size_t>(image.height()),
                                      pixels.rowCount));
        auto value = values.begin();
        for (const auto& column : columns) {
            for (std::size_t channel = 0; channel < pixels.channels; ++channel) {
                const float first = row[column.first * pixels.channels + channel];
                const float second = row[column.second * pixels.channels + channel];
                *value++ = first + (second - first) * column.share;
            }
        }
        setRow(image, y, values);
    }
}

void blurAtFraction(QImage& image, double sigma, BlurEdges edges) {
    const double factor = 2 * sigma / finestSigma;
    const QSize size(fractionOf(image.width(), factor), fractionOf(image.height(), factor));
    const auto smaller = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    setEnlarged(image, blurredComponents(smaller.convertToFormat(image.format()),
                                         sigmaAt(sigma, image.width(), size.width()),
                                         sigmaAt(sigma, image.height(), size.height()), edges));
}

/// The brightness of a colour, by the shares of its components in it.
double brightness(QRgb color) {
    return 0.2126 * qRed(color) + 0.7152 * qGreen(color) + 0.0722 * qBlue(color);
}

QRgb saturatedColor(QRgb premultiplied, double factor) {
    const double gray = brightness(premultiplied);
    const double alpha = qAlpha(premultiplied);
    const auto moved = [&](int component) {
        return static_cast<int>(std::lround(std::clamp(gray + (component - gray) * factor, 0.0, alpha)));
    };
    return qRgba(moved(qRed(premultiplied)), moved(qGreen(premultiplied)), moved(qBlue(premultiplied)),
                 qAlpha(premultiplied));
}

} // namespace

QImage blurred(const QImage& image, double sigma, BlurEdges edges) {
    auto result =
        image.convertToFormat(image.format() == QImage::Format_Alpha8 ? QImage::Format_Alpha8 : format);
    if (result.isNull() || !(sigma > 0))
        return result;
    if (sigma > finestSigma)
        blurAtFraction(result, sigma, edges);
    else
        blurAtFullSize(result, sigma, edges);
    result.setDevicePixelRatio(image.devicePixelRatio());
    return result;
}

QImage saturated(const QImage& image, double factor) {
    auto result = image.convertToFormat(format);
    for (int y = 0; y < result.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(result.scanLine(y));
        std::ranges::transform(std::span(row, static_cast<std::size_t>(result.width())), row,
                               [&](QRgb color) { return saturatedColor(color, factor); });
    }
    return result;
}
