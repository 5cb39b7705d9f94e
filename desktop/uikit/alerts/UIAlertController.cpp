#include "UIKit/UIAlertController.h"

#include "ObjectiveC/Class.h"
#include "alerts/UIAlertControllerPeer.h"

namespace {

const Class classObject = Class::define<UIAlertController, UIViewController>("UIAlertController");

class DesktopAlertController final : public UIAlertController {
public:
    DesktopAlertController(const std::optional<std::string>& title, const std::optional<std::string>& message)
        : UIAlertController(std::make_unique<UIAlertControllerPeer>(message)) {
        peer().setTitle(title.value_or(""));
    }
};

} // namespace

UIAlertController::UIAlertController(std::unique_ptr<UIViewControllerPeer> peer)
    : UIViewController(std::move(peer)) {}

Ref<UIAlertController>
UIAlertController::alertControllerWithTitle(const std::optional<std::string>& title,
                                            const std::optional<std::string>& message,
                                            UIAlertControllerStyle /*preferredStyle*/) {
    return make<DesktopAlertController>(title, message);
}

void UIAlertController::addAction(const Ref<UIAlertAction>& action) {
    if (const auto added = dynamicCast<DesktopAlertAction>(action))
        peerOf<UIAlertControllerPeer>(*this).addAction(added);
}
