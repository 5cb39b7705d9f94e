#pragma once

#include <QPainterPath>
#include <QSizeF>
#include <functional>
#include <memory>

enum class SymbolWeight { Regular, Semibold };

/// The outline of one symbol in each weight. A value; SymbolLibrary makes it.
class SymbolOutline {
public:
    using Maker = std::function<QPainterPath()>;

    /// Both outlines are in the font's units, y pointing down.
    /// \param makeSemibold called once, when that outline is asked for
    SymbolOutline(const QPainterPath& regular, Maker makeSemibold);

    /// What an image of the symbol at a point size reports as its size: the ink and a margin around it.
    [[nodiscard]] QSizeF size(double pointSize, SymbolWeight weight = SymbolWeight::Regular) const;

    /// The outline in points within a box of `size` whose upper left corner is the origin; fill it.
    [[nodiscard]] QPainterPath path(double pointSize, SymbolWeight weight = SymbolWeight::Regular) const;

    /// Has the outline of a weight made. \returns whether it was not there
    [[nodiscard]] bool prepare(SymbolWeight weight) const;

private:
    [[nodiscard]] const QPainterPath& outline(SymbolWeight weight) const;

    struct Outlines {
        QPainterPath regular;
        QPainterPath semibold; ///< empty until it is made
        Maker makeSemibold;
    };

    std::shared_ptr<Outlines> outlines_; ///< shared by copies
};
