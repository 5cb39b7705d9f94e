#pragma once

#include "UIKit/UILabel.h"
#include "UIKit/UITableViewCell.h"
#include "tables/IndexPath.h"

#include <cstddef>
#include <optional>
#include <string>

/// What stands above or below a section's card: a view, a text, or neither.
struct TableCaption {
    std::string text;
    NSTextAlignment alignment = NSTextAlignment::Natural;
    Ref<UIView> view;             ///< shown in place of the text, as wide as the table
    std::optional<double> height; ///< in points; absent for what suits the text or the view
};

/// Tells a table what it shows, and hears what is done with its rows. Made and owned by whoever shows the
/// table; takes itself away from the table before its end.
class TableContent {
public:
    TableContent() = default;
    virtual ~TableContent() = default;
    TableContent(const TableContent&) = delete;
    TableContent& operator=(const TableContent&) = delete;

    [[nodiscard]] virtual std::size_t sectionCount() const = 0;
    [[nodiscard]] virtual std::size_t rowCount(std::size_t section) const = 0;

    /// The row's height in points, 0 for a row that is hidden; absent for what suits its cell.
    [[nodiscard]] virtual std::optional<double> rowHeight(IndexPath row) = 0;

    /// A cell that shows the row: one that is no more in use, by its reuse identifier, or a new one.
    [[nodiscard]] virtual Ref<UITableViewCell> cellForRow(IndexPath row) = 0;

    [[nodiscard]] virtual TableCaption header(std::size_t section) = 0;
    [[nodiscard]] virtual TableCaption footer(std::size_t section) = 0;

    /// Whether the row can be selected.
    [[nodiscard]] virtual bool isSelectable(IndexPath row) = 0;

    /// The user has selected the row, which stays selected until it is deselected.
    virtual void didSelectRow(IndexPath row) = 0;
};
