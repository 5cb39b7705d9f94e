#include "FontFaces.h"

#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace {

constexpr auto textFamily = "Inter";
constexpr auto displayFamily = "Inter Display";
constexpr auto otherScripts = "DejaVu Sans"; ///< for Arabic and Hebrew, which those lack

/// A family that texts are set in, and the Debian package that has it.
struct Family {
    const char* name;
    const char* package;
};

constexpr std::array neededFamilies{Family{textFamily, "fonts-inter"}, Family{displayFamily, "fonts-inter"},
                                    Family{otherScripts, "fonts-dejavu-core"}};

// With these the stand-ins' capitals are as high as the platform's.
constexpr double textScale = 0.97;
constexpr double displayScale = 0.98;

/// Qt keeps the glyphs of fonts of up to 64 pixels.
constexpr int pixelSize = 60;

constexpr double smallestSize = 0.01; ///< of which a unit remains

/// What is added to each advance at a size, in points, to come to the widths of the platform's texts.
struct Tracking {
    double size;
    double light; ///< up to medium weight
    double heavy;
};

constexpr std::array trackings{Tracking{13, 0, 0}, Tracking{15, -0.1, 0}, Tracking{17, -0.1, 0},
                               Tracking{20, 0, 0.1}, Tracking{34, 0.4, 1}};

double trackingOf(const FontStyle& style) {
    const auto points = style.weight < FontWeight::Semibold ? &Tracking::light : &Tracking::heavy;
    const auto* const above = std::ranges::lower_bound(trackings, style.size, {}, &Tracking::size);
    if (above == trackings.begin())
        return trackings.front().*points;
    if (above == trackings.end())
        return trackings.back().*points;
    const auto& below = *std::prev(above);
    return std::lerp(below.*points, above->*points, (style.size - below.size) / (above->size - below.size));
}

constexpr double textSize = 17; // of any text below the display size

constexpr std::array oneOfEachFace{
    FontStyle{textSize, FontWeight::Regular},  FontStyle{FontFaces::displaySize, FontWeight::Regular},
    FontStyle{textSize, FontWeight::Light},    FontStyle{FontFaces::displaySize, FontWeight::Light},
    FontStyle{textSize, FontWeight::Medium},   FontStyle{FontFaces::displaySize, FontWeight::Medium},
    FontStyle{textSize, FontWeight::Semibold}, FontStyle{FontFaces::displaySize, FontWeight::Semibold},
    FontStyle{textSize, FontWeight::Bold},     FontStyle{FontFaces::displaySize, FontWeight::Bold}};

bool isDisplay(const FontStyle& style) {
    return style.size >= FontFaces::displaySize;
}

} // namespace

std::expected<void, std::string> FontFaces::check(const QStringList& families) {
    QStringList missing;
    for (const auto& [name, package] : neededFamilies) {
        if (!families.contains(QLatin1String(name)))
            missing.append(QString("%1 (Debian package %2)").arg(name, package));
    }
    if (missing.isEmpty())
        return {};
    return std::unexpected("the font families that texts are set in are not installed: " +
                           missing.join(", ").toStdString());
}

std::span<const FontStyle> FontFaces::styles() {
    return oneOfEachFace;
}

QFont FontFaces::font(const FontStyle& style) {
    QFont font({QLatin1String(isDisplay(style) ? displayFamily : textFamily), QLatin1String(otherScripts)});
    font.setPixelSize(pixelSize);
    font.setWeight(static_cast<QFont::Weight>(style.weight));
    font.setLetterSpacing(QFont::AbsoluteSpacing, trackingOf(style) / unit(style));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

double FontFaces::unit(const FontStyle& style) {
    return std::max(style.size, smallestSize) * (isDisplay(style) ? displayScale : textScale) / pixelSize;
}
