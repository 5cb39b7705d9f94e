#include "controllers/DesktopBarButtonItem.h"

#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<UIBarButtonItem>("UIBarButtonItem");

} // namespace

Ref<UIBarButtonItem> UIBarButtonItem::initWithImage(const Ref<UIImage>& image, const Ref<UIMenu>& menu) {
    DesktopBarButtonItem::Content content;
    content.image = image;
    content.menu = menu;
    return make<DesktopBarButtonItem>(std::move(content));
}

void DesktopBarButtonItem::setTintColor(const Ref<UIColor>& color) {
    tintColor_ = color;
    if (const auto observer = observer_)
        observer();
}
