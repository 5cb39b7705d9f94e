#include "UIKit/UINavigationController.h"

#include "ObjectiveC/Class.h"
#include "navigation/UINavigationControllerPeer.h"

namespace {

const Class classObject = Class::define<UINavigationController, UIViewController>("UINavigationController");

} // namespace

UINavigationController::UINavigationController()
    : UIViewController(std::make_unique<UINavigationControllerPeer>()) {}

void UINavigationController::pushViewController(const Ref<UIViewController>& controller, bool animated) {
    UINavigationControllerPeer::of(*this).push(controller, animated);
}
