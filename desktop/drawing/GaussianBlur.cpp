#include "GaussianBlur.h"

#include "BoxBlur.h"
#include "EnlargedPixels.h"
#include "PicturePool.h"
#include "PixelRows.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <numbers>

namespace {

constexpr auto format = QImage::Format_ARGB32_Premultiplied;
constexpr int boxes = 3; ///< in a row, each with a third of the variance

/// An image that is blurred by more pixels is blurred at a fraction of its size, which nobody can tell.
constexpr double finestSigma = 4;

/// What making an image smaller and larger again adds to the variance of its blur, in pixels of the smaller.
constexpr double varianceOfScaling = 0.25;

void blurComponents(PixelComponents& pixels, double horizontalSigma, double verticalSigma, BlurEdges edges) {
    const BoxBlur horizontal(horizontalSigma / std::numbers::sqrt3, edges);
    const BoxBlur vertical(verticalSigma / std::numbers::sqrt3, edges);
    for (int pass = 0; pass < boxes; ++pass) {
        horizontal.blurRows(pixels);
        vertical.blurColumns(pixels);
    }
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

/// From so many times its size on, an image's parts have edges at whole pixels.
constexpr double wholePixelsFrom = 8;

/// What a wide blur makes of an image, at a fraction of its size.
PixelComponents blurredAtFraction(const QImage& image, double sigma, BlurEdges edges) {
    const double factor = factorOf(sigma);
    const QSize size(fractionOf(image.width(), factor), fractionOf(image.height(), factor));
    auto smaller =
        factor < wholePixelsFrom
            ? PixelComponents::of(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                      .convertToFormat(image.format()))
            : PixelComponents::reduced(image, size);
    blurComponents(smaller, sigmaAt(sigma, image.width(), size.width()),
                   sigmaAt(sigma, image.height(), size.height()), edges);
    return smaller;
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
    auto mask = PixelComponents::of(maskOf(toSmaller.map(shape), smaller));
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
    EnlargedPixels(blurredComponents(result, sigma, edges), result.size()).copyTo(result, result.rect());
    result.setDevicePixelRatio(image.devicePixelRatio());
    return result;
}

PixelComponents blurredComponents(const QImage& image, double sigma, BlurEdges edges) {
    if (sigma > finestSigma)
        return blurredAtFraction(image, sigma, edges);
    auto pixels = PixelComponents::of(image);
    if (sigma > 0)
        blurComponents(pixels, sigma, sigma, edges);
    return pixels;
}

QImage blurredShape(const QPainterPath& shape, QSize size, double sigma, QRgb color) {
    auto result = PicturePool::shared().make(size);
    if (sigma > finestSigma) {
        EnlargedPixels(inColor(blurredMaskAtFraction(shape, size, sigma), color), size)
            .copyTo(result, result.rect());
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
