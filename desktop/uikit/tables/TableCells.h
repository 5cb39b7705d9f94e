#pragma once

#include "UIKit/UITableViewCell.h"
#include "tables/IndexPath.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

/// The cells of a table: those that show rows, and those that wait to show others.
class TableCells {
public:
    using Cells = std::map<IndexPath, Ref<UITableViewCell>>;

    [[nodiscard]] const Cells& shown() const { return shown_; }

    /// Empty when no cell shows the row.
    [[nodiscard]] Ref<UITableViewCell> at(IndexPath row) const;

    /// The row that the cell shows; nothing when it shows none.
    [[nodiscard]] std::optional<IndexPath> rowOf(const UITableViewCell& cell) const;

    void add(IndexPath row, const Ref<UITableViewCell>& cell) { shown_.insert_or_assign(row, cell); }

    /// A cell of that identifier that waits, readied for another row; empty when there is none.
    [[nodiscard]] Ref<UITableViewCell> takeWaiting(std::string_view identifier);

    /// The cells of all other rows leave the table and wait.
    void keepOnly(const std::set<IndexPath>& rows);

private:
    /// A cell leaves the table; it waits when it has an identifier.
    void retire(const Ref<UITableViewCell>& cell);

    Cells shown_;
    std::multimap<std::string, Ref<UITableViewCell>, std::less<>> waiting_;
};
