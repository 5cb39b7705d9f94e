#include "UIKit/UIViewController.h"

#include "FrameworkClass.h"
#include "UIKit/UINavigationController.h"
#include "UIViewControllerPeer.h"

namespace {

const FrameworkClassOf<UIViewController, UIResponder>
    frameworkClass("UIViewController",
                   {overridable<"-[UIViewController viewDidLoad]", &UIViewController::viewDidLoad>()});

} // namespace

UIViewController::UIViewController() = default;
UIViewController::~UIViewController() = default;

UIViewController::UIViewController(std::unique_ptr<UIViewControllerPeer> peer) : peer_(std::move(peer)) {}

UIView& UIViewController::view() {
    return *send<"-[UIViewController view]", Ref<UIView>>(*this);
}

void UIViewController::viewDidLoad() {
    sendToBase<"-[UIViewController viewDidLoad]", void>(*this);
}

UINavigationItem& UIViewController::navigationItem() const {
    return *send<"-[UIViewController navigationItem]", Ref<UINavigationItem>>(*this);
}

Ref<UINavigationController> UIViewController::navigationController() const {
    return send<"-[UIViewController navigationController]", Ref<UINavigationController>>(*this);
}

void UIViewController::presentViewController(const Ref<UIViewController>& controller, bool animated,
                                             std::function<void()> completion) {
    send<"-[UIViewController presentViewController:animated:completion:]", void>(*this, controller, animated,
                                                                                 completion);
}

void UIViewController::dismissViewControllerAnimated(bool animated, std::function<void()> completion) {
    send<"-[UIViewController dismissViewControllerAnimated:completion:]", void>(*this, animated, completion);
}

Ref<UIViewController> UIViewController::presentedViewController() const {
    return send<"-[UIViewController presentedViewController]", Ref<UIViewController>>(*this);
}

void UIViewController::setModalPresentationStyle(UIModalPresentationStyle style) {
    send<"-[UIViewController setModalPresentationStyle:]", void>(*this, style);
}

Ref<UIPopoverPresentationController> UIViewController::popoverPresentationController() const {
    return send<"-[UIViewController popoverPresentationController]", Ref<UIPopoverPresentationController>>(
        *this);
}

void UIViewController::setModalInPresentation(bool modal) {
    send<"-[UIViewController setModalInPresentation:]", void>(*this, modal);
}
