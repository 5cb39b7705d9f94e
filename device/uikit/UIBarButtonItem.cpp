#include "UIKit/UIBarButtonItem.h"

#include "FrameworkClass.h"

#include <string>

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

Ref<UIBarButtonItem> UIBarButtonItem::initWithTitle(std::string_view title, UIBarButtonItemStyle style,
                                                    NSObject& target, std::string_view action) {
    return makeObject<"-[UIBarButtonItem initWithTitle:style:target:action:]", UIBarButtonItem>(
        title, style, target, sel_registerName(std::string(action).c_str()));
}
