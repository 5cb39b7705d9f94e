#include "controllers/DesktopNavigationItem.h"

#include "ObjectiveC/Class.h"

#include <utility>

namespace {

const Class classObject = Class::define<UINavigationItem>("UINavigationItem");

std::vector<Ref<UIBarButtonItem>> listOf(const Ref<UIBarButtonItem>& item) {
    return item ? std::vector{item} : std::vector<Ref<UIBarButtonItem>>();
}

} // namespace

Ref<UINavigationItem> UINavigationItem::initWithTitle(std::string_view title) {
    auto item = make<DesktopNavigationItem>();
    item->setTitle(std::string(title));
    return item;
}

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

void DesktopNavigationItem::setLeftBarButtonItem(const Ref<UIBarButtonItem>& item) {
    setLeftBarButtonItems(listOf(item));
}

void DesktopNavigationItem::setRightBarButtonItem(const Ref<UIBarButtonItem>& item) {
    setRightBarButtonItems(listOf(item));
}

void DesktopNavigationItem::setRightBarButtonItems(std::vector<Ref<UIBarButtonItem>> items) {
    rightItems_ = std::move(items);
    changed();
}

void DesktopNavigationItem::changed() {
    if (const auto observer = observer_)
        observer();
}
