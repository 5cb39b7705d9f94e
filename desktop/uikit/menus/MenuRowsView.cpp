#include "menus/MenuRowsView.h"

#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "views/UIViewPeer.h"

namespace {

const Class classObject = Class::define<MenuRowsView, UIControl>("MenuRowsView");

} // namespace

MenuRowsView::MenuRowsView(const DesktopMenu& menu, Chosen chosen) : chosen_(std::move(chosen)) {
    peer().setAccessibility({}); // its rows are elements, it is none itself
    for (const auto& action : menu.actions()) {
        rows_.push_back(make<MenuRowView>(action));
        rows_.back()->setHasSeparator(!menu.title().empty() || rows_.size() > 1);
        addSubview(rows_.back());
    }
}

double MenuRowsView::fullHeight() const {
    return MenuRowView::height * static_cast<double>(rows_.size());
}

void MenuRowsView::layoutSubviews() {
    FollowingControl::layoutSubviews();
    auto top = 0.0;
    for (const auto& row : rows_) {
        row->setFrame(CGRectMake(0, top, bounds().size.width, MenuRowView::height));
        top += MenuRowView::height;
    }
}

MenuRowView* MenuRowsView::rowAt(CGPoint place) const {
    for (const auto& row : rows_) {
        if (CGRectContainsPoint(row->frame(), place) && !row->action()->isDisabled())
            return row.get();
    }
    return nullptr;
}

void MenuRowsView::fingerMoved(CGPoint place) {
    const auto* const touched = rowAt(place);
    for (const auto& row : rows_)
        row->setHighlighted(row.get() == touched);
}

void MenuRowsView::fingerLifted(CGPoint place) {
    if (const auto* const touched = rowAt(place))
        chosen_(touched->action());
    else
        fingerGone();
}

void MenuRowsView::fingerGone() {
    for (const auto& row : rows_)
        row->setHighlighted(false);
}
