#include "UIKit/UIDocumentPickerViewController.h"

#include "FrameworkClass.h"
#include "UIViewControllerPeer.h"

namespace {

class SystemDocumentPicker final : public UIDocumentPickerViewController {
public:
    SystemDocumentPicker() : UIDocumentPickerViewController(nullptr) {}
};

const FrameworkClassOf<SystemDocumentPicker, UIViewController>
    frameworkClass("UIDocumentPickerViewController");

} // namespace

UIDocumentPickerViewController::UIDocumentPickerViewController(std::unique_ptr<UIViewControllerPeer> peer)
    : UIViewController(std::move(peer)) {}

Ref<UIDocumentPickerViewController>
UIDocumentPickerViewController::initWithDocumentTypes(const std::vector<std::string>& types,
                                                      UIDocumentPickerMode mode) {
    const AutoreleasePool pool;
    return makeObject<"-[UIDocumentPickerViewController initWithDocumentTypes:inMode:]",
                      UIDocumentPickerViewController>(
        PropertyList(PropertyList::Array(types.begin(), types.end())), mode);
}

void UIDocumentPickerViewController::setDelegate(NSObject& delegate) {
    send<"-[UIDocumentPickerViewController setDelegate:]", void>(*this, delegate);
}

void UIDocumentPickerViewController::setAllowsMultipleSelection(bool allows) {
    send<"-[UIDocumentPickerViewController setAllowsMultipleSelection:]", void>(*this, allows);
}

void UIDocumentPickerViewController::setDirectoryURL(const Ref<NSURL>& folder) {
    send<"-[UIDocumentPickerViewController setDirectoryURL:]", void>(*this, folder);
}
