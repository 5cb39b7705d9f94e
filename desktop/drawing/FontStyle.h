#pragma once

/// The weights of the interface's face; the numbers are those of font files.
enum class FontWeight { Light = 300, Regular = 400, Medium = 500, Semibold = 600, Bold = 700 };

/// How a text is set, and the measures of its lines that follow from the size alone. They are the platform's
/// own, not those of the face that stands in for its.
struct FontStyle {
    double size = 17; ///< in points
    FontWeight weight = FontWeight::Regular;

    bool operator==(const FontStyle&) const = default;

    /// From a line's top to its baseline, in points.
    [[nodiscard]] double ascent() const { return 0.952 * size; }

    /// From one baseline to the next, in points.
    [[nodiscard]] double lineHeight() const { return 1.193 * size; }

    [[nodiscard]] double capHeight() const { return 0.705 * size; }
};
