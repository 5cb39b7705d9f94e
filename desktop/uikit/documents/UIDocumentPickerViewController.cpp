#include "UIKit/UIDocumentPickerViewController.h"

#include "ObjectiveC/Class.h"
#include "documents/UIDocumentPickerViewControllerPeer.h"

namespace {

const Class classObject =
    Class::define<UIDocumentPickerViewController, UIViewController>("UIDocumentPickerViewController");

class DesktopDocumentPicker final : public UIDocumentPickerViewController {
public:
    explicit DesktopDocumentPicker(const std::vector<std::string>& types)
        : UIDocumentPickerViewController(std::make_unique<UIDocumentPickerViewControllerPeer>(types)) {}
};

} // namespace

UIDocumentPickerViewController::UIDocumentPickerViewController(std::unique_ptr<UIViewControllerPeer> peer)
    : UIViewController(std::move(peer)) {}

Ref<UIDocumentPickerViewController>
UIDocumentPickerViewController::initWithDocumentTypes(const std::vector<std::string>& types,
                                                      UIDocumentPickerMode /*mode*/) {
    return make<DesktopDocumentPicker>(types);
}

void UIDocumentPickerViewController::setDelegate(NSObject& delegate) {
    peerOf<UIDocumentPickerViewControllerPeer>(*this).setDelegate(delegate);
}

void UIDocumentPickerViewController::setAllowsMultipleSelection(bool allows) {
    peerOf<UIDocumentPickerViewControllerPeer>(*this).setAllowsMultipleSelection(allows);
}

void UIDocumentPickerViewController::setDirectoryURL(const Ref<NSURL>& folder) {
    peerOf<UIDocumentPickerViewControllerPeer>(*this).setDirectory(folder->path());
}
