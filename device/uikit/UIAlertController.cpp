#include "UIKit/UIAlertController.h"

#include "FrameworkClass.h"
#include "UIViewControllerPeer.h"

namespace {

class SystemAlertController final : public UIAlertController {
public:
    SystemAlertController() : UIAlertController(nullptr) {}
};

const FrameworkClassOf<UIAlertAction> actionClass("UIAlertAction");
const FrameworkClassOf<SystemAlertController, UIViewController> frameworkClass("UIAlertController");

} // namespace

UIAlertController::UIAlertController(std::unique_ptr<UIViewControllerPeer> peer)
    : UIViewController(std::move(peer)) {}

Ref<UIAlertController> UIAlertController::alertControllerWithTitle(const std::optional<std::string>& title,
                                                                   const std::optional<std::string>& message,
                                                                   UIAlertControllerStyle preferredStyle) {
    return sendToClass<"+[UIAlertController alertControllerWithTitle:message:preferredStyle:]",
                       Ref<UIAlertController>>(title, message, preferredStyle);
}

void UIAlertController::addAction(const Ref<UIAlertAction>& action) {
    send<"-[UIAlertController addAction:]", void>(*this, action);
}

Ref<UIAlertAction> UIAlertAction::actionWithTitle(std::string_view title, UIAlertActionStyle style,
                                                  Handler handler) {
    return sendToClass<"+[UIAlertAction actionWithTitle:style:handler:]", Ref<UIAlertAction>>(title, style,
                                                                                              handler);
}
