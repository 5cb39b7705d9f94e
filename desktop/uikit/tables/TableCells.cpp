#include "tables/TableCells.h"

#include "tables/UITableViewCellPeer.h"

#include <algorithm>
#include <utility>

Ref<UITableViewCell> TableCells::at(IndexPath row) const {
    const auto found = shown_.find(row);
    return found != shown_.end() ? found->second : nullptr;
}

std::optional<IndexPath> TableCells::rowOf(const UITableViewCell& cell) const {
    const auto found = std::ranges::find(shown_, &cell, [](const auto& entry) { return entry.second.get(); });
    return found != shown_.end() ? std::optional(found->first) : std::nullopt;
}

Ref<UITableViewCell> TableCells::takeWaiting(std::string_view identifier) {
    const auto found = waiting_.find(identifier);
    if (found == waiting_.end())
        return nullptr;
    auto cell = std::move(found->second);
    waiting_.erase(found);
    return cell;
}

void TableCells::keepOnly(const std::set<IndexPath>& rows) {
    std::erase_if(shown_, [this, &rows](const auto& entry) {
        const auto leaves = !rows.contains(entry.first);
        if (leaves)
            retire(entry.second);
        return leaves;
    });
}

void TableCells::retire(const Ref<UITableViewCell>& cell) {
    cell->peer().removeFromSuperview();
    const auto& identifier = peerOf<UITableViewCellPeer>(*cell).reuseIdentifier();
    if (!identifier.empty())
        waiting_.emplace(identifier, cell);
}
