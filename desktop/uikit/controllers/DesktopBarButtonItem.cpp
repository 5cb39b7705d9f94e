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

Ref<UIBarButtonItem> UIBarButtonItem::initWithTitle(std::string_view title, UIBarButtonItemStyle style,
                                                    NSObject& target, std::string_view action) {
    DesktopBarButtonItem::Content content;
    content.title = title;
    content.target = Weak<NSObject>(&target);
    content.selector = action;
    content.emphasised = style == UIBarButtonItemStyle::Done;
    return make<DesktopBarButtonItem>(std::move(content));
}

void DesktopBarButtonItem::perform() {
    if (content_.menu)
        return;
    const auto kept = retain(this);
    if (content_.action)
        content_.action();
    if (const auto target = content_.target.strong())
        target->performSelector(content_.selector, {Ref<NSObject>(kept)});
}

void DesktopBarButtonItem::setTintColor(const Ref<UIColor>& color) {
    tintColor_ = color;
    if (const auto observer = observer_)
        observer();
}
