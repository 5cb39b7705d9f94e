#include "UIKit/UITableView.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UITableView, UIScrollView> frameworkClass("UITableView");

} // namespace

UITableView::UITableView() = default;

void UITableView::beginUpdates() {
    send<"-[UITableView beginUpdates]", void>(*this);
}

void UITableView::endUpdates() {
    send<"-[UITableView endUpdates]", void>(*this);
}
