#include "AnimationGroup.h"
#include "Foundation/NSLog.h"
#include "tables/UITableViewCellPeer.h"
#include "tables/UITableViewPeer.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds slideDuration{300};

} // namespace

void UITableViewPeer::insertRows(const std::vector<IndexPath>& rows) {
    beginUpdates();
    edits_.insertRows(rows);
    endUpdates();
}

void UITableViewPeer::deleteRows(const std::vector<IndexPath>& rows) {
    beginUpdates();
    edits_.deleteRows(rows);
    endUpdates();
}

void UITableViewPeer::reloadRows(const std::vector<IndexPath>& rows) {
    beginUpdates();
    edits_.reloadRows(rows);
    endUpdates();
}

void UITableViewPeer::endUpdates() {
    if (updateDepth_ == 0)
        return;
    --updateDepth_;
    if (updateDepth_ > 0)
        return;
    const auto edits = std::exchange(edits_, {});
    if (content_ == nullptr || heightsAreOld_) {
        setNeedsLayout();
    } else if (editsAgree(edits)) {
        applyEdits(edits);
    } else {
        NSLog("UITableView: the rows after the update do not agree with those before it and the changes.");
        reloadData();
    }
}

bool UITableViewPeer::editsAgree(const TableEdits& edits) const {
    if (content_->sectionCount() != layout_.sectionCount())
        return false;
    for (std::size_t section = 0; section < layout_.sectionCount(); ++section) {
        if (edits.countAfter(section, layout_.rowCount(section)) != content_->rowCount(section))
            return false;
    }
    return true;
}

void UITableViewPeer::applyEdits(const TableEdits& edits) {
    const auto before = layout_;
    const auto leaving = cells_.move(edits);
    heights_.move(edits);
    const auto moved = [&edits](std::optional<IndexPath> row) { return row ? edits.after(*row) : row; };
    selected_ = moved(selected_);
    highlighted_ = moved(highlighted_);
    askHeights();
    layout_ = TableLayout(heights_.sections());
    const auto entering = makeEnteringCells(edits, before);
    cutOffWhatComesAndGoes(edits, before);
    slide(entering, leaving);
}

UITableViewPeer::Cells UITableViewPeer::makeEnteringCells(const TableEdits& edits,
                                                          const TableLayout& before) {
    Cells entering;
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
            cell->setFrame(rectBefore(row, edits, before));
            cell->peer().layoutIfNeeded();
            if (!edits.before(row))
                entering.push_back(cell);
        }
    });
    return entering;
}

CGRect UITableViewPeer::rectBefore(IndexPath row, const TableEdits& edits, const TableLayout& before) const {
    if (const auto old = edits.before(row))
        return cardRect(before.row(*old));
    auto rect = cardRect(layout_.row(row));
    rect.origin.y = before.card(row.section).top;
    for (auto above = row; above.row-- > 0;) {
        if (const auto old = edits.before(above)) {
            rect.origin.y = before.row(*old).bottom();
            break;
        }
    }
    return rect;
}

void UITableViewPeer::cutOffWhatComesAndGoes(const TableEdits& edits, const TableLayout& before) {
    for (const auto& [row, cell] : cells_.shown()) {
        const auto old = edits.before(row);
        const auto wasHidden = old && before.row(*old).height <= 0;
        if (wasHidden || layout_.row(row).height <= 0)
            peerOf<UITableViewCellPeer>(*cell).setCutOff(true);
    }
}

void UITableViewPeer::slide(const Cells& entering, const Cells& leaving) {
    AnimationGroup::runWithoutAnimation([&] {
        for (const auto& cell : entering)
            cell->setAlpha(0);
        for (const auto& cell : leaving)
            insertSubview(cell, 0);
    });
    ++slides_;
    AnimationGroup::run(
        {.duration = slideDuration},
        [&] {
            takeLayout();
            placeAll();
            for (const auto& [row, cell] : cells_.shown())
                cell->peer().layoutIfNeeded();
            for (const auto& cell : entering)
                cell->setAlpha(1);
            for (const auto& cell : leaving)
                cell->setAlpha(0);
        },
        [this, self = Weak<UIView>(&view()), leaving](bool /*finished*/) {
            if (const auto kept = self.strong())
                slideEnded(leaving);
        });
}

void UITableViewPeer::slideEnded(const Cells& leaving) {
    --slides_;
    for (const auto& cell : leaving) {
        cells_.retire(cell);
        cell->setAlpha(1);
    }
    setNeedsLayout();
}
