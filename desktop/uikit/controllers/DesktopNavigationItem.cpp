#include "controllers/DesktopNavigationItem.h"

#include "ObjectiveC/Class.h"

#include <utility>

namespace {

const Class classObject = Class::define<UINavigationItem>("UINavigationItem");

} // namespace

void DesktopNavigationItem::setTitle(std::string title) {
    title_ = std::move(title);
    changed();
}

void DesktopNavigationItem::setLeftBarButtonItems(std::vector<Ref<UIBarButtonItem>> items) {
    leftItems_ = std::move(items);
    changed();
}

void DesktopNavigationItem::setLargeTitle(LargeTitle mode) {
    largeTitle_ = mode;
    changed();
}

void DesktopNavigationItem::setTitleView(const Ref<UIView>& view) {
    titleView_ = view;
    titleViewSize_ = view ? view->frame().size : CGSize();
    changed();
}

void DesktopNavigationItem::setRightBarButtonItems(std::vector<Ref<UIBarButtonItem>> items) {
    rightItems_ = std::move(items);
    changed();
}

void DesktopNavigationItem::changed() {
    if (const auto observer = observer_)
        observer();
}
