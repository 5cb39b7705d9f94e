#pragma once

#include "tables/IndexPath.h"

#include <cstddef>
#include <vector>

/// Where the sections of a table and their rows stand, one below the other, from their heights. Positions are
/// points from the top of the table's content. Immutable.
class TableLayout {
public:
    /// The heights of a section, in points; a hidden row has none.
    struct Section {
        double header = 0;
        std::vector<double> rows;
        double footer = 0;

        friend bool operator==(const Section&, const Section&) = default;
    };

    /// A stretch of the content.
    struct Span {
        double top = 0;
        double height = 0;

        [[nodiscard]] double bottom() const { return top + height; }

        friend bool operator==(const Span&, const Span&) = default;
    };

    /// A layout without sections.
    TableLayout() = default;

    explicit TableLayout(const std::vector<Section>& sections);

    [[nodiscard]] std::size_t sectionCount() const { return sections_.size(); }

    [[nodiscard]] std::size_t rowCount(std::size_t section) const {
        return sections_[section].rowTops.size() - 1;
    }

    [[nodiscard]] bool contains(IndexPath row) const {
        return row.section < sectionCount() && row.row < rowCount(row.section);
    }

    // \pre there is such a section or row
    [[nodiscard]] Span header(std::size_t section) const;
    [[nodiscard]] Span row(IndexPath row) const;
    [[nodiscard]] Span footer(std::size_t section) const;

    /// Of all sections.
    [[nodiscard]] double height() const { return sections_.empty() ? 0 : sections_.back().bottom(); }

    /// The rows with any part strictly between the two, in order; a hidden one that stands there too.
    [[nodiscard]] std::vector<IndexPath> rowsBetween(double top, double bottom) const;

    /// The sections with any part there, in order.
    [[nodiscard]] std::vector<std::size_t> sectionsBetween(double top, double bottom) const;

    /// Whether no row above it in its section is seen, or none below it.
    [[nodiscard]] bool isFirstShown(IndexPath row) const;
    [[nodiscard]] bool isLastShown(IndexPath row) const;

private:
    struct Placed {
        Section heights;
        double top = 0;
        std::vector<double> rowTops; ///< and, as the last one, the bottom of the last row

        [[nodiscard]] double cardTop() const { return rowTops.front(); }

        [[nodiscard]] double cardBottom() const { return rowTops.back(); }

        [[nodiscard]] double bottom() const { return cardBottom() + heights.footer; }
    };

    std::vector<Placed> sections_;
};
