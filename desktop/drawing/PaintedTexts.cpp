#include "PaintedTexts.h"

#include <QRgb>
#include <algorithm>
#include <array>
#include <functional>
#include <span>

namespace {

/// Larger pictures would leave no room for the others.
constexpr auto largest = PaintedTexts::capacity / 4;

constexpr std::size_t values = 256; ///< of a byte

/// As painters have it.
QRgb partOf(QRgb color, unsigned covered) {
    const auto part = [&](unsigned shift) {
        constexpr auto half = 128U;
        const auto product = (color >> shift & 0xFFU) * covered;
        return (product + (product >> 8U) + half) >> 8U << shift;
    };
    return part(0) | part(8) | part(16) | part(24);
}

/// Of black letters; null when not all of them are.
QImage coverageOf(const QImage& letters) {
    constexpr auto black = 0xFF000000U;
    QImage coverage(letters.size(), QImage::Format_Alpha8);
    auto any = 0U;
    for (int y = 0; y < letters.height(); ++y) {
        const std::span from(reinterpret_cast<const QRgb*>(letters.constScanLine(y)),
                             static_cast<std::size_t>(letters.width()));
        std::ranges::transform(from, coverage.scanLine(y), [&any](QRgb pixel) {
            any |= pixel;
            return static_cast<uchar>(pixel >> 24U);
        });
    }
    return (any & ~black) == 0 ? coverage : QImage();
}

} // namespace

/// Texts that are no more are none's.
bool PaintedTexts::Key::operator==(const Key& other) const {
    const auto isSame =
        !lines.expired() && !lines.owner_before(other.lines) && !other.lines.owner_before(lines);
    constexpr std::equal_to<> areEqual;
    return isSame && alignment == other.alignment && areEqual(width, other.width) && size == other.size &&
           toPicture == other.toPicture;
}

PaintedTexts& PaintedTexts::shared() {
    static PaintedTexts texts;
    return texts;
}

QImage PaintedTexts::coverage(const Key& key, const std::function<QImage()>& paint) {
    const auto known = std::ranges::find(painted_, key, &Painted::key);
    if (known != painted_.end()) {
        painted_.splice(painted_.begin(), painted_, known);
        return known->coverage;
    }
    ++madeCount_;
    auto made = coverageOf(paint());
    if (made.sizeInBytes() <= largest)
        keep(key, made);
    return made;
}

QImage PaintedTexts::colored(const QImage& coverage, const QColor& color) {
    std::array<QRgb, values> shades{};
    for (std::size_t covered = 0; covered < shades.size(); ++covered)
        shades[covered] = partOf(qPremultiply(color.rgba()), static_cast<unsigned>(covered));
    QImage letters(coverage.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < letters.height(); ++y) {
        const std::span from(coverage.constScanLine(y), static_cast<std::size_t>(coverage.width()));
        std::ranges::transform(from, reinterpret_cast<QRgb*>(letters.scanLine(y)),
                               [&shades](uchar covered) { return shades[covered]; });
    }
    return letters;
}

void PaintedTexts::keep(const Key& key, const QImage& coverage) {
    painted_.push_front({.key = key, .coverage = coverage});
    auto bytes = qsizetype{0};
    std::erase_if(painted_, [&bytes](const Painted& painted) {
        if (painted.key.lines.expired())
            return true;
        bytes += painted.coverage.sizeInBytes();
        return bytes > capacity;
    });
}
