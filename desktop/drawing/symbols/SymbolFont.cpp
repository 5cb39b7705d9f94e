#include "symbols/SymbolFont.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <QTransform>
#include <algorithm>

// Outside of any namespace, as Qt's macro wants it.
// NOLINTNEXTLINE(misc-use-anonymous-namespace)
static void registerResources() {
    Q_INIT_RESOURCE(symbols);
}

namespace {

constexpr int fontSize = 512; ///< the font's own grid

/// A square of 56 units holds an icon, and its shapes fit a text of 48 units.
constexpr double emsInSquare = 56.0 / 48.0;

bool isPartOfName(char character) {
    return (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9') ||
           character == '_';
}

} // namespace

SymbolFont::SymbolFont() {
    registerResources();
    const auto font = QFontDatabase::addApplicationFont(":/drawing/symbols.ttf");
    family_ = QFontDatabase::applicationFontFamilies(font).value(0);
}

std::optional<QPainterPath> SymbolFont::icon(std::string_view name) const {
    if (name.empty() || !std::ranges::all_of(name, isPartOfName))
        return std::nullopt;
    QFont font(family_);
    font.setPixelSize(fontSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    QTextLayout layout(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const auto runs = layout.glyphRuns();
    if (runs.size() != 1 || runs.front().glyphIndexes().size() != 1) // the letters did not become one icon
        return std::nullopt;
    const auto& run = runs.front();
    const auto glyph = run.rawFont().pathForGlyph(run.glyphIndexes().front());
    const double scale =
        unitsPerEm * emsInSquare / run.rawFont().advancesForGlyphIndexes(run.glyphIndexes()).front().x();
    if (glyph.isEmpty())
        return std::nullopt;
    return QTransform::fromScale(scale, scale).map(glyph);
}
