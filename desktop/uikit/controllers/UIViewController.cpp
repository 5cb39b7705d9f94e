#include "UIKit/UIViewController.h"

#include "ObjectiveC/Class.h"
#include "UIKit/UINavigationController.h"
#include "controllers/DesktopNavigationItem.h"
#include "controllers/UIViewControllerPeer.h"

#include <utility>

namespace {

const Class classObject = Class::define<UIViewController, UIResponder>(
    "UIViewController", {method<"viewDidLoad", &UIViewController::viewDidLoad>()});

} // namespace

UIViewController::UIViewController() : UIViewController(std::make_unique<UIViewControllerPeer>()) {}

UIViewController::UIViewController(std::unique_ptr<UIViewControllerPeer> peer) : peer_(std::move(peer)) {
    peer_->controller_ = this;
}

UIViewController::~UIViewController() = default;

UIView& UIViewController::view() {
    return peer_->view();
}

void UIViewController::viewDidLoad() {}

UINavigationItem& UIViewController::navigationItem() const {
    return peer_->navigationItem();
}

Ref<UINavigationController> UIViewController::navigationController() const {
    for (auto* parent = peer_->parent(); parent != nullptr; parent = parent->peer().parent()) {
        if (auto* const found = dynamic_cast<UINavigationController*>(parent))
            return retain(found);
    }
    return nullptr;
}

void UIViewController::presentViewController(const Ref<UIViewController>& controller, bool animated,
                                             std::function<void()> completion) {
    peer_->present(controller, animated, std::move(completion));
}

void UIViewController::dismissViewControllerAnimated(bool animated, std::function<void()> completion) {
    peer_->dismiss(animated, std::move(completion));
}

Ref<UIViewController> UIViewController::presentedViewController() const {
    return peer_->presented();
}

void UIViewController::setModalPresentationStyle(UIModalPresentationStyle style) {
    peer_->setModalPresentationStyle(style);
}

void UIViewController::setModalInPresentation(bool modal) {
    peer_->setModalInPresentation(modal);
}

Ref<UIPopoverPresentationController> UIViewController::popoverPresentationController() const {
    return peer_->popover();
}
