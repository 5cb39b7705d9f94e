#include "AnimationGroup.h"
#include "Foundation/NSLog.h"
#include "tables/UITableViewCellPeer.h"
#include "tables/UITableViewPeer.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

constexpr std::chrono::milliseconds slideDuration{300};

/// With each row as high as it is in the higher of both, which have the same rows.
TableLayout higherOf(const TableLayout& layout, std::vector<TableLayout::Section> heights) {
    for (std::size_t section = 0; section < heights.size(); ++section) {
        auto& rows = heights[section].rows;
        for (std::size_t row = 0; row < rows.size(); ++row)
            rows[row] = std::max(rows[row], layout.row({section, row}).height);
    }
    return TableLayout(heights);
}

} // namespace

void UITableViewPeer::endUpdates() {
    if (updateDepth_ == 0)
        return;
    --updateDepth_;
    if (updateDepth_ > 0)
        return;
    if (content_ == nullptr || heightsAreOld_) {
        setNeedsLayout();
    } else if (hasSameRows()) {
        slideToNewHeights();
    } else {
        NSLog("UITableView: the rows after the update do not agree with those before it.");
        reloadData();
    }
}

bool UITableViewPeer::hasSameRows() const {
    if (content_->sectionCount() != layout_.sectionCount())
        return false;
    for (std::size_t section = 0; section < layout_.sectionCount(); ++section) {
        if (layout_.rowCount(section) != content_->rowCount(section))
            return false;
    }
    return true;
}

void UITableViewPeer::slideToNewHeights() {
    const auto before = layout_;
    askHeights();
    layout_ = TableLayout(heights_.sections());
    makeComingCells(before);
    cutOffWhatComesAndGoes(before);
    seen_ = higherOf(slides_ > 0 ? seen_ : before, heights_.sections());
    ++slides_;
    AnimationGroup::run(
        {.duration = slideDuration},
        [this] {
            takeLayout();
            placeAll();
            for (const auto& [row, cell] : cells_.shown())
                cell->peer().layoutIfNeeded();
        },
        [this, self = Weak<UIView>(&view())](bool /*finished*/) {
            if (const auto kept = self.strong()) {
                --slides_;
                setNeedsLayout();
            }
        });
}

void UITableViewPeer::makeComingCells(const TableLayout& before) {
    const auto seen = cells_.shown();
    auto rows = nearRows(view().bounds().origin.y);
    makeCells(rows);
    while (measure(rows)) {
        layout_ = TableLayout(heights_.sections());
        rows = nearRows(view().bounds().origin.y);
        makeCells(rows);
    }
    AnimationGroup::runWithoutAnimation([&] {
        for (const auto& [row, cell] : cells_.shown()) {
            if (seen.contains(row))
                continue;
            place(row, *cell);
            cell->setFrame(cardRect(before.row(row)));
            cell->peer().layoutIfNeeded();
        }
    });
}

void UITableViewPeer::cutOffWhatComesAndGoes(const TableLayout& before) {
    for (const auto& [row, cell] : cells_.shown()) {
        if (before.row(row).height <= 0 || layout_.row(row).height <= 0)
            peerOf<UITableViewCellPeer>(*cell).setCutOff(true);
    }
}
