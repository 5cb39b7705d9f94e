#include "GaussianBlur.h"

#include "BoxBlur.h"
#include "PixelRows.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <numbers>
#include <span>

namespace {

/// Rounds what is not negative, where the library's functions would take most of the time.
constexpr float half = 0.5F;

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

/// \pre the values are not negative
void setRow(QImage& image, int y, std::span<const float> values) {
    std::ranges::transform(values, image.scanLine(y),
                           [](float value) { return static_cast<uchar>(value + half); });
}

void blurComponents(PixelComponents& pixels, double horizontalSigma, double verticalSigma, BlurEdges edges) {
    const BoxBlur horizontal(horizontalSigma / std::numbers::sqrt3, edges);
    const BoxBlur vertical(verticalSigma / std::numbers::sqrt3, edges);
    for (int pass = 0; pass < boxes; ++pass) {
        horizontal.blurRows(pixels);
        vertical.blurColumns(pixels);
    }
}

void blurAtFullSize(QImage& image, double sigma, BlurEdges edges) {
    auto pixels = componentsOf(image);
    blurComponents(pixels, sigma, sigma, edges);
    for (int y = 0; y < image.height(); ++y)
        setRow(image, y,
               std::span(pixels.values)
                   .subspan(static_cast<std::size_t>(y) * pixels.rowLength, pixels.rowLength));
}

/// How much smaller an image is blurred.
double factorOf(double sigma) {
    constexpr double largest = PixelRows::rowsAddedAtMost / 2.0;
    return std::min(largest, 2 * sigma / finestSigma);
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

using FineRow = std::vector<PixelRows::Fine>;

/// The rows, each made longer.
std::vector<FineRow> widened(const PixelComponents& pixels, std::size_t width) {
    std::vector<Between> columns;
    columns.reserve(width);
    for (std::size_t x = 0; x < width; ++x)
        columns.emplace_back(x, width, pixels.rowLength / pixels.channels);
    std::vector<FineRow> rows(pixels.rowCount, FineRow(width * pixels.channels));
    for (std::size_t y = 0; y < pixels.rowCount; ++y) {
        const auto* const row = &pixels.values[y * pixels.rowLength];
        auto value = rows[y].begin();
        for (const auto& column : columns) {
            for (std::size_t channel = 0; channel < pixels.channels; ++channel) {
                const float first = row[column.first * pixels.channels + channel];
                const float second = row[column.second * pixels.channels + channel];
                const float mixed = first + (second - first) * column.share;
                *value++ = static_cast<PixelRows::Fine>(mixed * PixelRows::fineSteps + half);
            }
        }
    }
    return rows;
}

/// Fills an image with a smaller one, made larger.
void setEnlarged(QImage& image, const PixelComponents& pixels) {
    const auto rows = widened(pixels, static_cast<std::size_t>(image.width()));
    for (int y = 0; y < image.height(); ++y) {
        const Between between(static_cast<std::size_t>(y), static_cast<std::size_t>(image.height()),
                              pixels.rowCount);
        const auto& first = rows[between.first];
        PixelRows::mix(first, rows[between.second],
                       static_cast<int>(std::lround(between.share * PixelRows::fullFineShare)),
                       {image.scanLine(y), first.size()});
    }
}

/// From so many times its size on, an image's parts have edges at whole pixels.
constexpr double wholePixelsFrom = 8;

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

PixelComponents reduced(const QImage& image, QSize size) {
    const auto channels = static_cast<std::size_t>(image.depth() / CHAR_BIT);
    PixelComponents means{.values = {},
                          .rowCount = static_cast<std::size_t>(size.height()),
                          .rowLength = static_cast<std::size_t>(size.width()) * channels,
                          .channels = channels};
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

/// What a wide blur makes of an image, at a fraction of its size.
PixelComponents blurredAtFraction(const QImage& image, double sigma, BlurEdges edges) {
    const double factor = factorOf(sigma);
    const QSize size(fractionOf(image.width(), factor), fractionOf(image.height(), factor));
    auto smaller = factor < wholePixelsFrom
                       ? componentsOf(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                          .convertToFormat(image.format()))
                       : reduced(image, size);
    blurComponents(smaller, sigmaAt(sigma, image.width(), size.width()),
                   sigmaAt(sigma, image.height(), size.height()), edges);
    return smaller;
}

/// The brightness of a colour, by the shares of its components in it.
double brightness(double red, double green, double blue) {
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

QRgb saturatedColor(QRgb premultiplied, double factor) {
    const double gray = brightness(qRed(premultiplied), qGreen(premultiplied), qBlue(premultiplied));
    const double alpha = qAlpha(premultiplied);
    const auto moved = [&](int component) {
        return static_cast<int>(std::lround(std::clamp(gray + (component - gray) * factor, 0.0, alpha)));
    };
    return qRgba(moved(qRed(premultiplied)), moved(qGreen(premultiplied)), moved(qBlue(premultiplied)),
                 qAlpha(premultiplied));
}

/// \param pixels of the bytes of ARGB32, premultiplied
void saturate(PixelComponents& pixels, double factor) {
    constexpr auto alphaPlace = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? 3U : 0U;
    constexpr auto redPlace = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? 2U : 1U;
    constexpr auto bluePlace = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? 0U : 3U;
    constexpr auto greenPlace = 3U - redPlace;
    for (std::size_t start = 0; start < pixels.values.size(); start += pixels.channels) {
        const std::span pixel(&pixels.values[start], pixels.channels);
        const auto gray =
            static_cast<float>(brightness(pixel[redPlace], pixel[greenPlace], pixel[bluePlace]));
        for (const auto place : {redPlace, greenPlace, bluePlace})
            pixel[place] = std::clamp(gray + (pixel[place] - gray) * static_cast<float>(factor), 0.0F,
                                      pixel[alphaPlace]);
    }
}

QImage maskOf(const QPainterPath& shape, QSize size) {
    QImage mask(size, QImage::Format_Alpha8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(shape, Qt::black);
    return mask;
}

/// Pixels of a colour, as opaque as those of a mask.
PixelComponents inColor(const PixelComponents& mask, QRgb color) {
    constexpr auto channels = 4U;
    constexpr float full = 255;
    const QRgb opaque = color | 0xff000000U;
    std::array<uchar, channels> bytes{};
    std::memcpy(bytes.data(), &opaque, channels);
    PixelComponents pixels{.values = {},
                           .rowCount = mask.rowCount,
                           .rowLength = mask.rowLength * channels,
                           .channels = channels};
    pixels.values.reserve(mask.values.size() * channels);
    for (const float alpha : mask.values) {
        for (const auto byte : bytes)
            pixels.values.push_back(alpha * static_cast<float>(byte) / full);
    }
    return pixels;
}

/// A mask that is painted at the fraction of its size that it is blurred at.
PixelComponents blurredMaskAtFraction(const QPainterPath& shape, QSize size, double sigma) {
    const double factor = factorOf(sigma);
    const QSize smaller(fractionOf(size.width(), factor), fractionOf(size.height(), factor));
    const auto toSmaller = QTransform::fromScale(static_cast<double>(smaller.width()) / size.width(),
                                                 static_cast<double>(smaller.height()) / size.height());
    auto mask = componentsOf(maskOf(toSmaller.map(shape), smaller));
    blurComponents(mask, sigmaAt(sigma, size.width(), smaller.width()),
                   sigmaAt(sigma, size.height(), smaller.height()), BlurEdges::Transparent);
    return mask;
}

} // namespace

QImage blurred(const QImage& image, double sigma, BlurEdges edges) {
    auto result =
        image.convertToFormat(image.format() == QImage::Format_Alpha8 ? QImage::Format_Alpha8 : format);
    if (result.isNull() || !(sigma > 0))
        return result;
    if (sigma > finestSigma)
        setEnlarged(result, blurredAtFraction(result, sigma, edges));
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

QImage blurredBackdrop(const QImage& image, double sigma, double saturation) {
    if (sigma <= finestSigma)
        return saturated(blurred(image, sigma, BlurEdges::Extended), saturation);
    auto pixels = blurredAtFraction(image, sigma, BlurEdges::Extended);
    saturate(pixels, saturation);
    QImage result(image.size(), format);
    setEnlarged(result, pixels);
    return result;
}

QImage blurredShape(const QPainterPath& shape, QSize size, double sigma, QRgb color) {
    QImage result(size, format);
    if (sigma > finestSigma) {
        setEnlarged(result, inColor(blurredMaskAtFraction(shape, size, sigma), color));
        return result;
    }
    const auto mask = blurred(maskOf(shape, size), sigma, BlurEdges::Transparent);
    result.fill(QColor(color));
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, mask);
    painter.end();
    return result;
}
