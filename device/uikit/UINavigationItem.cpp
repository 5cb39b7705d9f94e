#include "UIKit/UINavigationItem.h"

#include "FrameworkClass.h"

namespace {

class SystemNavigationItem final : public UINavigationItem {
public:
    void setTitleView(const Ref<UIView>& view) override {
        send<"-[UINavigationItem setTitleView:]", void>(*this, view);
    }

    void setLeftBarButtonItem(const Ref<UIBarButtonItem>& item) override {
        send<"-[UINavigationItem setLeftBarButtonItem:]", void>(*this, item);
    }

    void setRightBarButtonItem(const Ref<UIBarButtonItem>& item) override {
        send<"-[UINavigationItem setRightBarButtonItem:]", void>(*this, item);
    }

    void setRightBarButtonItems(std::vector<Ref<UIBarButtonItem>> items) override {
        send<"-[UINavigationItem setRightBarButtonItems:]", void>(*this, items);
    }
};

const FrameworkClassOf<SystemNavigationItem> frameworkClass("UINavigationItem");

} // namespace

Ref<UINavigationItem> UINavigationItem::initWithTitle(std::string_view title) {
    return makeObject<"-[UINavigationItem initWithTitle:]", UINavigationItem>(title);
}
