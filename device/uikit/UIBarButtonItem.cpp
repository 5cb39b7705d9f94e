#include "UIKit/UIBarButtonItem.h"

#include "FrameworkClass.h"

namespace {

class SystemBarButtonItem final : public UIBarButtonItem {
public:
    void setTintColor(const Ref<UIColor>& color) override {
        send<"-[UIBarButtonItem setTintColor:]", void>(*this, color);
    }
};

const FrameworkClassOf<SystemBarButtonItem> frameworkClass("UIBarButtonItem");

} // namespace

Ref<UIBarButtonItem> UIBarButtonItem::initWithImage(const Ref<UIImage>& image, const Ref<UIMenu>& menu) {
    return makeObject<"-[UIBarButtonItem initWithImage:menu:]", UIBarButtonItem>(image, menu);
}
