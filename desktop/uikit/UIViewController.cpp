#include "UIKit/UIViewController.h"

#include "DesktopNavigationItem.h"
#include "ObjectiveC/Class.h"
#include "UIKit/UINavigationController.h"
#include "UIViewControllerPeer.h"

#include <utility>

namespace {

const Class classObject = Class::define<UIViewController, UIResponder>("UIViewController");

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
