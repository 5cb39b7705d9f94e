#include "tables/UITableView.h"

#include "ObjectiveC/Class.h"
#include "tables/UITableViewPeer.h"

namespace {

const Class tableClass = Class::define<UITableView, UIScrollView>("UITableView");

} // namespace

UITableView::UITableView() : UIScrollView(std::make_unique<UITableViewPeer>()) {}
