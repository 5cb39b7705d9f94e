#include "UIKit/UINavigationController.h"

#include "ObjectiveC/Class.h"
#include "navigation/UINavigationControllerPeer.h"

namespace {

const Class classObject = Class::define<UINavigationController, UIViewController>("UINavigationController");

} // namespace

UINavigationController::UINavigationController()
    : UIViewController(std::make_unique<UINavigationControllerPeer>()) {}

void UINavigationController::pushViewController(const Ref<UIViewController>& controller, bool animated) {
    peerOf<UINavigationControllerPeer>(*this).push(controller, animated);
}
