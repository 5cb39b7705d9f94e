#pragma once

#include "tables/IndexPath.h"

#include <cstddef>
#include <optional>
#include <set>
#include <vector>

/// Rows that are taken out of a table, put in and shown anew in one go. Rows taken out or shown anew are
/// named by their places before, rows put in by their places after.
class TableEdits {
public:
    void deleteRows(const std::vector<IndexPath>& rows) { deleted_.insert(rows.begin(), rows.end()); }

    void insertRows(const std::vector<IndexPath>& rows) { inserted_.insert(rows.begin(), rows.end()); }

    void reloadRows(const std::vector<IndexPath>& rows) { reloaded_.insert(rows.begin(), rows.end()); }

    [[nodiscard]] bool isReloaded(IndexPath before) const { return reloaded_.contains(before); }

    /// Where a row from before stands after; nothing for one that is taken out.
    [[nodiscard]] std::optional<IndexPath> after(IndexPath before) const;

    /// Where a row from after stood before; nothing for one that is put in.
    [[nodiscard]] std::optional<IndexPath> before(IndexPath after) const;

    /// How many rows a section of so many has after; nothing when the edits name rows that cannot be.
    [[nodiscard]] std::optional<std::size_t> countAfter(std::size_t section, std::size_t countBefore) const;

private:
    using Rows = std::set<IndexPath>;

    [[nodiscard]] static std::optional<IndexPath> moved(IndexPath row, const Rows& left, const Rows& entered);

    Rows deleted_;
    Rows inserted_;
    Rows reloaded_;
};
