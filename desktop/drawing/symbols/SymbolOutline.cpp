#include "symbols/SymbolOutline.h"

#include "symbols/SymbolFont.h"

#include <QTransform>
#include <utility>

namespace {

// In units of the font. A symbol's image is wider and higher than its ink by these on each side.
constexpr double horizontalMargin = 88;
constexpr double verticalMargin = 60;

} // namespace

SymbolOutline::SymbolOutline(const QPainterPath& regular, Maker makeSemibold)
    : outlines_(std::make_shared<Outlines>(Outlines{regular, {}, std::move(makeSemibold)})) {}

QSizeF SymbolOutline::size(double pointSize, SymbolWeight weight) const {
    const auto ink = outline(weight).boundingRect();
    return QSizeF(ink.width() + 2 * horizontalMargin, ink.height() + 2 * verticalMargin) * pointSize /
           SymbolFont::unitsPerEm;
}

QPainterPath SymbolOutline::path(double pointSize, SymbolWeight weight) const {
    const auto& units = outline(weight);
    const auto ink = units.boundingRect();
    const double scale = pointSize / SymbolFont::unitsPerEm;
    QTransform toBox;
    toBox.scale(scale, scale);
    toBox.translate(horizontalMargin - ink.left(), verticalMargin - ink.top());
    return toBox.map(units);
}

bool SymbolOutline::prepare(SymbolWeight weight) const {
    if (weight == SymbolWeight::Regular || !outlines_->semibold.isEmpty())
        return false;
    outlines_->semibold = outlines_->makeSemibold();
    return true;
}

const QPainterPath& SymbolOutline::outline(SymbolWeight weight) const {
    if (weight == SymbolWeight::Regular)
        return outlines_->regular;
    static_cast<void>(prepare(weight));
    return outlines_->semibold;
}
