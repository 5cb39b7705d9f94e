#include "UIKit/UITableView.h"

#include "ObjectiveC/Class.h"
#include "tables/UITableViewPeer.h"

namespace {

const Class tableClass = Class::define<UITableView, UIScrollView>("UITableView");

} // namespace

UITableView::UITableView() : UIScrollView(std::make_unique<UITableViewPeer>()) {}

void UITableView::beginUpdates() {
    peerOf<UITableViewPeer>(*this).beginUpdates();
}

void UITableView::endUpdates() {
    peerOf<UITableViewPeer>(*this).endUpdates();
}
