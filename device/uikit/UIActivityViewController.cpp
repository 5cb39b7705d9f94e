#include "UIKit/UIActivityViewController.h"

#include "FrameworkClass.h"
#include "UIViewControllerPeer.h"

namespace {

constexpr id noActivities = nullptr;

class SystemActivityController final : public UIActivityViewController {
public:
    SystemActivityController() : UIActivityViewController(nullptr) {}
};

const FrameworkClassOf<SystemActivityController, UIViewController> frameworkClass("UIActivityViewController");

} // namespace

UIActivityViewController::UIActivityViewController(std::unique_ptr<UIViewControllerPeer> peer)
    : UIViewController(std::move(peer)) {}

Ref<UIActivityViewController>
UIActivityViewController::initWithActivityItems(const std::vector<Ref<NSURL>>& items) {
    const AutoreleasePool pool;
    return makeObject<"-[UIActivityViewController initWithActivityItems:applicationActivities:]",
                      UIActivityViewController>(items, noActivities);
}
