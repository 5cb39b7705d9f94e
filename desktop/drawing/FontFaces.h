#pragma once

#include "FontStyle.h"

#include <QFont>
#include <QFontDatabase>
#include <QStringList>
#include <expected>
#include <span>
#include <string>

/// The faces that stand in for the platform's own: Inter for text, Inter Display for what is larger, and
/// DejaVu Sans for the scripts that those lack. Needs a QGuiApplication.
class FontFaces {
public:
    /// From this size on, in points, a text is set in the display face.
    static constexpr double displaySize = 20;

    /// Whether the faces are there. A host asks at its start, as any text would come out in another face.
    /// \returns or a message for the user that names the missing families and the packages that have them
    [[nodiscard]] static std::expected<void, std::string>
    check(const QStringList& families = QFontDatabase::families());

    /// One style of each face for texts in Latin letters.
    [[nodiscard]] static std::span<const FontStyle> styles();

    /// The font of a style. Qt has fonts of whole pixels only, so this one has a fixed size, and `unit` says
    /// what its pixels stand for.
    [[nodiscard]] static QFont font(const FontStyle& style);

    /// What a pixel of a style's font is in points, so that capitals are as high as the platform's.
    [[nodiscard]] static double unit(const FontStyle& style);
};
