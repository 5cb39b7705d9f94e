#pragma once

/// The measures of a table of cards, which depend on how wide it is. Lengths are points.
class TableMetrics {
public:
    /// \param width of the table; \param scale pixels per point
    TableMetrics(double width, double scale) : width_(width), scale_(scale) {}

    [[nodiscard]] double width() const { return width_; }

    [[nodiscard]] double scale() const { return scale_; }

    static constexpr double minimumRowHeight = 44;
    static constexpr double cornerRadius = 10;
    /// Between the cards of sections without texts, half of it to either.
    static constexpr double sectionGap = 106.0 / 3;
    static constexpr double firstSectionTop = 35;
    static constexpr double headerTextBottom = 19.0 / 3; ///< from the text to the card
    static constexpr double headerTextTop = 16;
    static constexpr double firstHeaderTextTop = 33;
    static constexpr double footerTextTop = 22.0 / 3; ///< from the card to the text
    static constexpr double footerTextBottom = 10;

    /// From the table's edges to the cards, and from a card's edges to what it shows.
    [[nodiscard]] double margin() const { return width_ < wideWidth ? narrowMargin : wideMargin; }

    [[nodiscard]] double cardWidth() const;

    /// Where the texts above and below the cards stand.
    [[nodiscard]] double textLeft() const { return 2 * margin(); }

    [[nodiscard]] double textWidth() const;

    /// The height of a header or footer without a text.
    [[nodiscard]] double emptyHeaderHeight(bool first) const;
    [[nodiscard]] double emptyFooterHeight() const;
    /// The height of one whose text is that high.
    [[nodiscard]] double headerHeight(double textHeight, bool first) const;
    [[nodiscard]] double footerHeight(double textHeight) const;

    /// One pixel.
    [[nodiscard]] double hairline() const { return 1 / scale_; }

    /// A length up to whole pixels.
    [[nodiscard]] double rounded(double length) const;

private:
    static constexpr double wideWidth = 414;
    static constexpr double narrowMargin = 16;
    static constexpr double wideMargin = 20;

    double width_;
    double scale_;
};
