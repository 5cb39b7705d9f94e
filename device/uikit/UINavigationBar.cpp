#include "UIKit/UINavigationBar.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UINavigationBar, UIView> frameworkClass("UINavigationBar");

} // namespace

UINavigationBar::UINavigationBar() = default;

void UINavigationBar::setItems(const std::vector<Ref<UINavigationItem>>& items) {
    send<"-[UINavigationBar setItems:]", void>(*this, items);
}
