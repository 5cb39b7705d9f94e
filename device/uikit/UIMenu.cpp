#include "UIKit/UIMenu.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UIMenu> frameworkClass("UIMenu");

} // namespace

Ref<UIMenu> UIMenu::menuWithTitle(std::string_view title, const std::vector<Ref<UIAction>>& children) {
    return sendToClass<"+[UIMenu menuWithTitle:children:]", Ref<UIMenu>>(title, children);
}
