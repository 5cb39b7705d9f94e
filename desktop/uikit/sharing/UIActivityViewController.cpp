#include "UIKit/UIActivityViewController.h"

#include "ObjectiveC/Class.h"
#include "sharing/UIActivityViewControllerPeer.h"

namespace {

const Class classObject =
    Class::define<UIActivityViewController, UIViewController>("UIActivityViewController");

class DesktopActivityController final : public UIActivityViewController {
public:
    explicit DesktopActivityController(const std::vector<Ref<NSURL>>& items)
        : UIActivityViewController(std::make_unique<UIActivityViewControllerPeer>(items)) {}
};

} // namespace

UIActivityViewController::UIActivityViewController(std::unique_ptr<UIViewControllerPeer> peer)
    : UIViewController(std::move(peer)) {}

Ref<UIActivityViewController>
UIActivityViewController::initWithActivityItems(const std::vector<Ref<NSURL>>& items) {
    return make<DesktopActivityController>(items);
}
