#include "tables/TableEdits.h"

#include <algorithm>
#include <iterator>

namespace {

std::size_t countIn(const std::set<IndexPath>& rows, std::size_t section) {
    return static_cast<std::size_t>(std::ranges::count(rows, section, &IndexPath::section));
}

/// Of the same section.
std::size_t countBelow(const std::set<IndexPath>& rows, IndexPath end) {
    return static_cast<std::size_t>(std::distance(rows.lower_bound({end.section, 0}), rows.lower_bound(end)));
}

} // namespace

std::optional<IndexPath> TableEdits::moved(IndexPath row, const Rows& left, const Rows& entered) {
    if (left.contains(row))
        return std::nullopt;
    row.row -= countBelow(left, row);
    for (auto next = entered.lower_bound({row.section, 0}); next != entered.end() && *next <= row; ++next)
        ++row.row;
    return row;
}

std::optional<IndexPath> TableEdits::after(IndexPath before) const {
    return moved(before, deleted_, inserted_);
}

std::optional<IndexPath> TableEdits::before(IndexPath after) const {
    return moved(after, inserted_, deleted_);
}

std::optional<std::size_t> TableEdits::countAfter(std::size_t section, std::size_t countBefore) const {
    const auto fits = [section](const Rows& rows, std::size_t count) {
        const auto next = rows.lower_bound({section, count});
        return next == rows.end() || next->section != section;
    };
    if (!fits(deleted_, countBefore) || !fits(reloaded_, countBefore))
        return std::nullopt;
    const auto after = countBefore - countIn(deleted_, section) + countIn(inserted_, section);
    return fits(inserted_, after) ? std::optional(after) : std::nullopt;
}
