#include "SpecifierTable.h"

#include "DesktopColor.h"
#include "RectGeometry.h"
#include "SpecifierViews.h"
#include "cells/PSHeaderFooterView.h"
#include "cells/PSTableCellPeer.h"
#include "screen/Screen.h"
#include "specifiers/RadioGroup.h"
#include "typing/TextInput.h"

#include <algorithm>
#include <utility>

namespace {

constexpr auto plainReuseIdentifier = "PSTableCell";

std::string reuseIdentifierFor(const DesktopSpecifier& specifier) {
    const auto kind = nameOf(specifier.kind());
    return kind.empty() ? plainReuseIdentifier : std::string(kind);
}

NSTextAlignment alignmentOf(const DesktopSpecifier& group) {
    const auto value = group.propertyForKey("footerAlignment");
    const auto number = value ? value->integerValue() : 0;
    if (number == static_cast<int>(NSTextAlignment::Center))
        return NSTextAlignment::Center;
    return number == static_cast<int>(NSTextAlignment::Right) ? NSTextAlignment::Right
                                                              : NSTextAlignment::Natural;
}

bool isAmong(const std::vector<Ref<DesktopSpecifier>>& rows, const Ref<DesktopSpecifier>& row) {
    return std::ranges::find(rows, row) != rows.end();
}

} // namespace

SpecifierTable::SpecifierTable(Page page) : page_(std::move(page)), view_(make<UITableView>()) {
    view_->setBackgroundColor(DesktopColor::system(SystemColor::GroupedBackground));
    table().setAlwaysBounceVertical(true);
    table().setContent(this);
}

SpecifierTable::~SpecifierTable() {
    table().setContent(nullptr);
}

const SpecifierTable::Sections& SpecifierTable::sections() const {
    if (!sections_)
        sections_ = page_.sections();
    return *sections_;
}

void SpecifierTable::show(Sections sections) {
    sections_ = std::move(sections);
    forgetViewsOfOthers();
    table().reloadData();
}

void SpecifierTable::refresh(const PSSpecifier& specifier) {
    if (!indexPathOf(specifier)) {
        table().reloadData();
        return;
    }
    refreshCell(specifier);
    table().beginUpdates();
    table().endUpdates();
}

void SpecifierTable::refreshCell(const PSSpecifier& specifier) {
    const auto row = indexPathOf(specifier);
    if (!row)
        return;
    if (const auto cell = dynamicCast<PSTableCell>(table().cellForRow(*row)))
        cell->refreshCellContentsWithSpecifier(at(*row));
}

void SpecifierTable::refreshShown() {
    for (const auto& [row, shown] : TableCells::Cells(table().cells())) {
        if (const auto cell = dynamicCast<PSTableCell>(shown))
            cell->refreshCellContentsWithSpecifier(at(row));
    }
}

bool SpecifierTable::tapCell(const PSSpecifier& specifier, PSListController& page) {
    const auto row = indexPathOf(specifier);
    const auto cell = row ? dynamicCast<PSTableCell>(table().cellForRow(*row)) : nullptr;
    return cell && peerOf<PSTableCellPeer>(*cell).tapped(page);
}

void SpecifierTable::showEditedRow() {
    const auto* const input = Screen::current().firstResponder().input();
    if (input == nullptr)
        return;
    for (const auto& [row, cell] : table().cells()) {
        if (input->inputView().peer().isDescendantOf(*cell))
            table().scrollRowToVisible(row, false);
    }
}

void SpecifierTable::followKeyboard() {
    const auto bottom = CGRectGetMaxY(view_->peer().convertToScreen(view_->bounds()));
    const auto keyboardTop = Screen::current().bounds().size.height - Screen::current().keyboardHeight();
    const auto covered = std::max(0.0, bottom - keyboardTop - view_->peer().safeAreaInsets().bottom);
    auto inset = table().contentInset();
    inset.bottom += covered - std::exchange(keyboardInset_, covered);
    table().setContentInset(inset);
    showEditedRow();
}

DesktopSpecifier& SpecifierTable::at(IndexPath row) const {
    return *sections()[row.section].rows[row.row];
}

std::optional<IndexPath> SpecifierTable::indexPathOf(const PSSpecifier& specifier) const {
    for (std::size_t section = 0; section < sections().size(); ++section) {
        const auto& rows = sections()[section].rows;
        const auto found = std::ranges::find(rows, &specifier, &Ref<DesktopSpecifier>::get);
        if (found != rows.end())
            return IndexPath{section, static_cast<std::size_t>(found - rows.begin())};
    }
    return std::nullopt;
}

std::optional<double> SpecifierTable::rowHeight(IndexPath row) {
    const auto height = page_.height(row);
    return height >= 0 ? std::optional(height) : std::nullopt;
}

Ref<UITableViewCell> SpecifierTable::cellForRow(IndexPath row) {
    auto& specifier = at(row);
    auto cell = cellOf(specifier);
    giveTo(specifier, *cell);
    cell->refreshCellContentsWithSpecifier(specifier);
    // With the height the page may settle how the cell looks, which it could not before there was one.
    static_cast<void>(page_.height(row));
    return cell;
}

void SpecifierTable::giveTo(DesktopSpecifier& specifier, PSTableCell& cell) {
    const auto before = peerOf<PSTableCellPeer>(cell).specifier();
    if (before && before.get() != &specifier && before->cell().get() == &cell) {
        before->forgetCell();
        cell.setClipsToBounds(false);
    }
    specifier.setCell(cell);
}

Ref<PSTableCell> SpecifierTable::cellOf(DesktopSpecifier& specifier) {
    const auto identifier = reuseIdentifierFor(specifier);
    if (specifier.textForKey("cellClass").empty()) {
        if (auto waiting = dynamicCast<PSTableCell>(table().dequeueReusableCell(identifier)))
            return waiting;
        return makeCellFor(specifier, identifier);
    }
    auto& own = ownViews_[retain(&specifier)].cell;
    if (!own)
        own = makeCellFor(specifier, {});
    return own;
}

TableCaption SpecifierTable::header(std::size_t section) {
    const auto& group = sections()[section].group;
    if (!group)
        return {};
    auto& own = ownViews_[group].header;
    if (!own)
        own = makeCaptionViewFor(*group, "headerCellClass");
    TableCaption caption;
    caption.text = group->label();
    setView(caption, *own);
    return caption;
}

TableCaption SpecifierTable::footer(std::size_t section) {
    const auto& group = sections()[section].group;
    if (!group)
        return {};
    auto& own = ownViews_[group].footer;
    if (!own)
        own = makeCaptionViewFor(*group, "footerCellClass");
    TableCaption caption;
    caption.text = group->textForKey("footerText");
    caption.alignment = alignmentOf(*group);
    setView(caption, *own);
    return caption;
}

void SpecifierTable::setView(TableCaption& caption, const Ref<UIView>& view) const {
    caption.view = view;
    if (view)
        caption.height = PSHeaderFooterView::preferredHeight(*view, view_->bounds().size.width);
}

bool SpecifierTable::isSelectable(IndexPath row) {
    const auto& specifier = at(row);
    if (!specifier.isEnabled())
        return false;
    switch (specifier.kind()) {
    case SpecifierKind::Link:
    case SpecifierKind::LinkList:
    case SpecifierKind::Button:
        return true;
    case SpecifierKind::ListItem:
        return isChoice(specifier) || specifier.hasAction();
    case SpecifierKind::Switch:
    case SpecifierKind::Slider:
    case SpecifierKind::Segment:
    case SpecifierKind::EditText:
    case SpecifierKind::EditTextView:
    case SpecifierKind::SecureEditText:
        return false;
    default:
        return specifier.hasAction();
    }
}

void SpecifierTable::didSelectRow(IndexPath row) {
    const auto specifier = retain(&at(row));
    page_.select(*specifier);
}

void SpecifierTable::forgetViewsOfOthers() {
    std::erase_if(ownViews_, [this](const auto& entry) {
        return std::ranges::none_of(sections(), [&entry](const SpecifierSection& section) {
            return section.group == entry.first || isAmong(section.rows, entry.first);
        });
    });
}
