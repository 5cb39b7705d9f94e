#include "tables/UITableViewPeer.h"

#include "AnimationGroup.h"
#include "RectGeometry.h"
#include "tables/UITableViewCellPeer.h"

#include <algorithm>
#include <utility>

namespace {

/// How far beyond the screen cells are made already.
constexpr double nearby = 2 * TableMetrics::minimumRowHeight;
/// Below the last section.
constexpr double listEnd = 53.0 / 3;

} // namespace

bool UITableViewPeer::isSelectable(const UITableViewCell& cell) const {
    const auto row = cells_.rowOf(cell);
    return row && content_ != nullptr && content_->isSelectable(*row);
}

void UITableViewPeer::setContent(TableContent* content) {
    content_ = content;
    reloadData();
}

void UITableViewPeer::reloadData() {
    cells_.keepOnly({});
    captions_.clear();
    selected_.reset();
    highlighted_.reset();
    heights_.forgetMeasured();
    heightsAreOld_ = true;
    setNeedsLayout();
}

TableMetrics UITableViewPeer::metrics() const {
    return {view().bounds().size.width, traits().displayScale};
}

const TableLayout& UITableViewPeer::layout() {
    refreshLayout();
    return layout_;
}

void UITableViewPeer::refreshLayout() {
    if (!std::exchange(heightsAreOld_, false))
        return;
    askHeights();
    takeLayout();
    seen_ = layout_; // the rows may be others than those that slide
}

void UITableViewPeer::askHeights() {
    if (content_ != nullptr)
        heights_.ask(*content_, metrics());
    else
        heights_ = {};
}

void UITableViewPeer::takeLayout() {
    layout_ = TableLayout(heights_.sections());
    setContentSize({view().bounds().size.width, layout_.height() + metrics().rounded(listEnd)});
}

CGRect UITableViewPeer::cardRect(const TableLayout::Span& span) const {
    const auto measures = metrics();
    return CGRectMake(measures.margin(), span.top, measures.cardWidth(), span.height);
}

CGRect UITableViewPeer::rectForRow(IndexPath row) {
    return cardRect(layout().row(row));
}

CGRect UITableViewPeer::rectForHeader(std::size_t section) {
    const auto span = layout().header(section);
    return CGRectMake(0, span.top, view().bounds().size.width, span.height);
}

CGRect UITableViewPeer::rectForFooter(std::size_t section) {
    const auto span = layout().footer(section);
    return CGRectMake(0, span.top, view().bounds().size.width, span.height);
}

std::optional<IndexPath> UITableViewPeer::rowAt(CGPoint point) {
    for (const auto row : layout().rowsBetween(point.y, point.y + metrics().hairline())) {
        if (CGRectContainsPoint(rectForRow(row), point))
            return row;
    }
    return std::nullopt;
}

void UITableViewPeer::scrollRowToVisible(IndexPath row, bool animated) {
    view().peer().layoutIfNeeded();
    if (!layout().contains(row))
        return;
    scrollRectToVisible(rectForRow(row), animated);
}

void UITableViewPeer::selectRow(IndexPath row) {
    deselectRow(false);
    selected_ = row;
    if (const auto cell = cells_.at(row))
        peerOf<UITableViewCellPeer>(*cell).setSelected(true, false);
}

void UITableViewPeer::deselectRow(bool animated) {
    const auto row = std::exchange(selected_, std::nullopt);
    if (const auto cell = row ? cells_.at(*row) : nullptr)
        peerOf<UITableViewCellPeer>(*cell).setSelected(false, animated);
}

void UITableViewPeer::fadeSelection(double faded) {
    if (const auto cell = selected_ ? cells_.at(*selected_) : nullptr)
        peerOf<UITableViewCellPeer>(*cell).setSelectionFade(faded);
}

void UITableViewPeer::setHighlighted(std::optional<IndexPath> row) {
    const auto before = std::exchange(highlighted_, row);
    if (const auto cell = before ? cells_.at(*before) : nullptr)
        peerOf<UITableViewCellPeer>(*cell).setHighlighted(false);
    if (const auto cell = row ? cells_.at(*row) : nullptr)
        peerOf<UITableViewCellPeer>(*cell).setHighlighted(true);
    // One row at a time looks pressed.
    fadeSelection(row && row != selected_ ? 1 : 0);
}

void UITableViewPeer::cellTouched(const UITableViewCell& cell) {
    const auto row = cells_.rowOf(cell);
    if (row && content_ != nullptr && content_->isSelectable(*row))
        setHighlighted(row);
}

void UITableViewPeer::cellReleased(const UITableViewCell& cell) {
    const auto row = highlighted_;
    const auto same = row && cells_.rowOf(cell) == row;
    if (same)
        selectRow(*row);
    setHighlighted(std::nullopt);
    if (same && content_ != nullptr)
        content_->didSelectRow(*row);
}

void UITableViewPeer::cellTouchCancelled() {
    setHighlighted(std::nullopt);
}

void UITableViewPeer::layoutSubviews() {
    UIScrollViewPeer::layoutSubviews();
    const auto width = view().bounds().size.width;
    if (std::exchange(laidOutWidth_, width) != width)
        heightsAreOld_ = true;
    refreshLayout();
    tile();
}

void UITableViewPeer::didScroll() {
    setNeedsLayout();
}

void UITableViewPeer::traitsDidChange() {
    heightsAreOld_ = true;
    UIScrollViewPeer::traitsDidChange();
}

void UITableViewPeer::tile() {
    auto rows = nearRows(view().bounds().origin.y);
    if (slides_ == 0)
        cells_.keepOnly(rows); // before others are made, which may use what waits
    makeCells(rows);
    while (measure(rows)) {
        takeLayout();
        rows = nearRows(view().bounds().origin.y);
        makeCells(rows);
    }
    if (slides_ == 0) {
        cells_.keepOnly(rows);
        captions_.show(nearSections(), heights_, view());
    }
    placeAll();
}

UITableViewPeer::Rows UITableViewPeer::nearRows(double top) const {
    const auto found = layout_.rowsBetween(top - nearby, top + view().bounds().size.height + nearby);
    return {found.begin(), found.end()};
}

std::set<std::size_t> UITableViewPeer::nearSections() const {
    const auto bounds = view().bounds();
    const auto found = layout_.sectionsBetween(bounds.origin.y - nearby, CGRectGetMaxY(bounds) + nearby);
    return {found.begin(), found.end()};
}

void UITableViewPeer::makeCells(const Rows& rows) {
    for (const auto row : rows) {
        if (!cells_.at(row))
            AnimationGroup::runWithoutAnimation([this, row] { cells_.add(row, makeCell(row)); });
    }
}

Ref<UITableViewCell> UITableViewPeer::makeCell(IndexPath row) {
    const auto cell = content_->cellForRow(row);
    insertSubview(cell, 0);
    peerOf<UITableViewCellPeer>(*cell).setSelected(selected_ == row, false);
    peerOf<UITableViewCellPeer>(*cell).setHighlighted(highlighted_ == row);
    return cell;
}

bool UITableViewPeer::measure(const Rows& rows) {
    const auto measures = metrics();
    auto changed = false;
    for (const auto row : rows) {
        if (!heights_.isToBeMeasured(row))
            continue;
        auto& cell = peerOf<UITableViewCellPeer>(*cells_.at(row));
        cell.setMargin(measures.margin());
        changed |= heights_.setMeasured(row, cell.sizeThatFits({measures.cardWidth(), 0}).height);
    }
    return changed;
}

void UITableViewPeer::placeAll() {
    for (const auto& [row, cell] : cells_.shown())
        place(row, *cell);
    captions_.place(layout_, metrics());
}

void UITableViewPeer::place(IndexPath row, const UITableViewCell& cell) const {
    auto& peer = peerOf<UITableViewCellPeer>(cell);
    const auto span = layout_.row(row);
    peer.setFrame(cardRect(span));
    peer.setMargin(metrics().margin());
    const auto& seen = slides_ > 0 ? seen_ : layout_;
    peer.setPlaceInCard(seen.isFirstShown(row), seen.isLastShown(row));
    const auto gone = slides_ == 0 && span.height <= 0;
    peer.setHidden(gone); // so that nobody comes to it
    if (slides_ == 0)
        peer.setCutOff(gone);
}
