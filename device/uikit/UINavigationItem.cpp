#include "UIKit/UINavigationItem.h"

#include "FrameworkClass.h"

namespace {

class SystemNavigationItem final : public UINavigationItem {
public:
    void setTitleView(const Ref<UIView>& view) override {
        send<"-[UINavigationItem setTitleView:]", void>(*this, view);
    }

    void setRightBarButtonItems(std::vector<Ref<UIBarButtonItem>> items) override {
        send<"-[UINavigationItem setRightBarButtonItems:]", void>(*this, items);
    }
};

const FrameworkClassOf<SystemNavigationItem> frameworkClass("UINavigationItem");

} // namespace
