#pragma once

#include <QPainterPath>
#include <QString>
#include <optional>
#include <string_view>

/// The font that the library carries, which draws an icon for each of the words that are its names. Needs a
/// QGuiApplication. SymbolLibrary owns one.
class SymbolFont {
public:
    /// Icons are this many units large where the text beside them is 1 point.
    static constexpr double unitsPerEm = 1000;

    SymbolFont();

    /// \param name in the font's spelling, "checkmark_circle_fill"
    /// \returns the icon in units, y pointing down; nothing when the font has none of
    /// that name
    [[nodiscard]] std::optional<QPainterPath> icon(std::string_view name) const;

private:
    QString family_;
};
