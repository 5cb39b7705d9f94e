#include "UIKit/UINavigationController.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UINavigationController, UIViewController> frameworkClass("UINavigationController");

} // namespace

UINavigationController::UINavigationController() = default;

void UINavigationController::pushViewController(const Ref<UIViewController>& controller, bool animated) {
    send<"-[UINavigationController pushViewController:animated:]", void>(*this, controller, animated);
}
