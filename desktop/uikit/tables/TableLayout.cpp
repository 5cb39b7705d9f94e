#include "tables/TableLayout.h"

#include <algorithm>

namespace {

/// The first row that ends below that place.
std::size_t firstRowBelow(const std::vector<double>& rowTops, double place) {
    const auto end = std::ranges::upper_bound(rowTops, place);
    return static_cast<std::size_t>(std::max(end - rowTops.begin() - 1, std::ptrdiff_t{0}));
}

} // namespace

TableLayout::TableLayout(const std::vector<Section>& sections) {
    sections_.reserve(sections.size());
    auto top = 0.0;
    for (const auto& section : sections) {
        auto& placed = sections_.emplace_back();
        placed.heights = section;
        placed.top = top;
        placed.rowTops.reserve(section.rows.size() + 1);
        placed.rowTops.push_back(top += section.header);
        for (const auto height : section.rows)
            placed.rowTops.push_back(top += height);
        top = placed.bottom();
    }
}

TableLayout::Span TableLayout::header(std::size_t section) const {
    const auto& placed = sections_[section];
    return {placed.top, placed.heights.header};
}

TableLayout::Span TableLayout::row(IndexPath row) const {
    const auto& placed = sections_[row.section];
    return {placed.rowTops[row.row], placed.heights.rows[row.row]};
}

TableLayout::Span TableLayout::footer(std::size_t section) const {
    const auto& placed = sections_[section];
    return {placed.cardBottom(), placed.heights.footer};
}

std::vector<IndexPath> TableLayout::rowsBetween(double top, double bottom) const {
    std::vector<IndexPath> found;
    for (const auto section : sectionsBetween(top, bottom)) {
        const auto& tops = sections_[section].rowTops;
        for (auto row = firstRowBelow(tops, top); row + 1 < tops.size() && tops[row] < bottom; ++row)
            found.push_back({section, row});
    }
    return found;
}

std::vector<std::size_t> TableLayout::sectionsBetween(double top, double bottom) const {
    const auto first = std::ranges::lower_bound(sections_, top, {}, &Placed::bottom);
    std::vector<std::size_t> found;
    for (auto section = first; section != sections_.end() && section->top < bottom; ++section) {
        if (section->bottom() > top)
            found.push_back(static_cast<std::size_t>(section - sections_.begin()));
    }
    return found;
}

bool TableLayout::isFirstShown(IndexPath row) const {
    return this->row(row).top <= sections_[row.section].cardTop();
}

bool TableLayout::isLastShown(IndexPath row) const {
    return this->row(row).bottom() >= sections_[row.section].cardBottom();
}
