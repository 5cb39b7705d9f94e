#include "documents/UIDocumentPickerViewControllerPeer.h"

#include "DesktopColor.h"
#include "Device.h"
#include "documents/DocumentInbox.h"
#include "presentation/Presentation.h"

#include <utility>

namespace {

constexpr auto pickedSelector = "documentPicker:didPickDocumentsAtURLs:";

} // namespace

UIDocumentPickerViewControllerPeer::UIDocumentPickerViewControllerPeer(std::vector<std::string> types)
    : types_(std::move(types)),
      directory_(Device::documentsPath) {}

Ref<UIView> UIDocumentPickerViewControllerPeer::makeView() {
    auto view = make<UIView>();
    view->setBackgroundColor(DesktopColor::system(SystemColor::Background));
    return view;
}

std::string UIDocumentPickerViewControllerPeer::sheetTitle() const {
    return directory_.substr(directory_.rfind('/') + 1);
}

std::expected<void, std::string>
UIDocumentPickerViewControllerPeer::pickFiles(const std::vector<std::string>& hostPaths) {
    if (hostPaths.size() != 1 && !allowsMultipleSelection_)
        return std::unexpected("One file is wanted.");
    std::vector<std::string> copies;
    for (const auto& path : hostPaths) {
        auto copy = DocumentInbox::takeHostFile(path);
        if (!copy)
            return std::unexpected(copy.error());
        copies.push_back(std::move(*copy));
    }
    handOver(copies);
    return {};
}

void UIDocumentPickerViewControllerPeer::cancelPicking() {
    controller().dismissViewControllerAnimated(true, {});
}

void UIDocumentPickerViewControllerPeer::handOver(const std::vector<std::string>& paths) {
    std::vector<Ref<NSObject>> urls;
    for (const auto& path : paths)
        urls.push_back(NSURL::fileURLWithPath(path));
    const auto tell = [picker = retain<NSObject>(&controller()), delegate = delegate_,
                       urls = std::move(urls)] {
        const auto told = delegate.strong();
        if (told && told->respondsToSelector(pickedSelector))
            told->performSelector(pickedSelector, {picker, urls});
    };
    controller().dismissViewControllerAnimated(true, tell);
}
