#pragma once

#include "tables/IndexPath.h"
#include "tables/TableContent.h"
#include "tables/TableLayout.h"
#include "tables/TableMetrics.h"

#include <cstddef>
#include <map>
#include <vector>

/// How high the rows, headers and footers of a table are: as its content says, as its texts need, and, for a
/// row whose height follows from its cell, the least height until the cell has been measured.
class TableHeights {
public:
    /// What stands around a section's card.
    struct Captions {
        TableCaption header;
        TableCaption footer;
    };

    /// Asks the content for everything anew. Rows that have been measured keep that height until they are
    /// measured again.
    void ask(TableContent& content, const TableMetrics& metrics);

    [[nodiscard]] const std::vector<TableLayout::Section>& sections() const { return sections_; }

    [[nodiscard]] const std::vector<Captions>& captions() const { return captions_; }

    /// Whether the row's height follows from its cell, which has not been measured since the last `ask`.
    [[nodiscard]] bool isToBeMeasured(IndexPath row) const { return toBeMeasured_[row.section][row.row]; }

    /// \returns whether the height is another than before
    bool setMeasured(IndexPath row, double height);

    void forgetMeasured() { measured_.clear(); }

private:
    [[nodiscard]] double askRow(TableContent& content, IndexPath row);

    std::vector<TableLayout::Section> sections_;
    std::vector<Captions> captions_;
    std::vector<std::vector<bool>> toBeMeasured_; ///< by section and row
    std::map<IndexPath, double> measured_;
};
