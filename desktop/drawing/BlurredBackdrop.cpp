#include "BlurredBackdrop.h"

#include "GaussianBlur.h"
#include "PixelRows.h"

#include <QSysInfo>
#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace {

constexpr auto isLittleEndian = QSysInfo::ByteOrder == QSysInfo::LittleEndian;
constexpr std::size_t alphaPlace = isLittleEndian ? 3 : 0;
constexpr std::size_t redPlace = isLittleEndian ? 2 : 1;
constexpr std::size_t greenPlace = isLittleEndian ? 1 : 2;
constexpr std::size_t bluePlace = isLittleEndian ? 0 : 3;

/// Of a color's red, green and blue, by their shares in it.
float brightness(std::span<const float> pixel) {
    return 0.2126F * pixel[redPlace] + 0.7152F * pixel[greenPlace] + 0.0722F * pixel[bluePlace];
}

PixelComponents saturated(PixelComponents pixels, float factor) {
    for (std::size_t start = 0; start < pixels.values.size(); start += pixels.channels) {
        const std::span pixel(&pixels.values[start], pixels.channels);
        const auto gray = brightness(pixel);
        for (const auto place : {redPlace, greenPlace, bluePlace})
            pixel[place] = std::clamp(gray + (pixel[place] - gray) * factor, 0.0F, pixel[alphaPlace]);
    }
    return pixels;
}

PixelComponents tinted(PixelComponents pixels, const QColor& tint) {
    constexpr float full = 255;
    const auto alpha = tint.alphaF();
    std::array<float, PixelRows::pixelSize> over{};
    over[alphaPlace] = alpha * full;
    over[redPlace] = tint.redF() * alpha * full;
    over[greenPlace] = tint.greenF() * alpha * full;
    over[bluePlace] = tint.blueF() * alpha * full;
    for (std::size_t index = 0; index < pixels.values.size(); ++index)
        pixels.values[index] = over[index % over.size()] + pixels.values[index] * (1 - alpha);
    return pixels;
}

bool areOpaque(const PixelComponents& pixels) {
    constexpr float leastOpaque = 254.5F;
    for (auto place = alphaPlace; place < pixels.values.size(); place += pixels.channels) {
        if (pixels.values[place] < leastOpaque)
            return false;
    }
    return true;
}

} // namespace

BlurredBackdrop::BlurredBackdrop(const QImage& behind, double sigma, double saturation, const QColor& tint,
                                 QSize size)
    : BlurredBackdrop(tinted(saturated(blurredComponents(behind, sigma, BlurEdges::Extended),
                                       static_cast<float>(saturation)),
                             tint),
                      size) {}

BlurredBackdrop::BlurredBackdrop(const PixelComponents& pixels, QSize size)
    : isOpaque_(areOpaque(pixels)),
      enlarged_(pixels, size) {}
