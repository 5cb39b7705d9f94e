#include "documents/UIDocumentPickerViewControllerPeer.h"

#include "DesktopImage.h"
#include "Device.h"
#include "Foundation/NSString.h"
#include "SystemTexts.h"
#include "alerts/Complaint.h"
#include "documents/DocumentFolderPage.h"
#include "documents/DocumentInbox.h"
#include "documents/DocumentPickerView.h"
#include "documents/DocumentTypes.h"
#include "navigation/UINavigationControllerPeer.h"
#include "screen/Screen.h"

#include <algorithm>
#include <utility>

namespace {

constexpr auto pickedSelector = "documentPicker:didPickDocumentsAtURLs:";

} // namespace

UIDocumentPickerViewControllerPeer::UIDocumentPickerViewControllerPeer(std::vector<std::string> types)
    : types_(std::move(types)),
      directory_(Device::documentsPath) {}

Ref<UIView> UIDocumentPickerViewControllerPeer::makeView() {
    navigation_ = make<UINavigationController>();
    addChild(navigation_);
    navigation_->pushViewController(
        make<DocumentFolderPage>(
            directory_,
            DocumentFolderPage::Rules{.types = types_,
                                      .chosen = [this](const std::string& path) { pickFromDevice(path); },
                                      .cancelled = [this] { cancelPicking(); }}),
        false);
    std::function<void()> browse;
    if (Screen::current().fileDialog() != nullptr)
        browse = [this] { browseHost(); };
    return make<DocumentPickerView>(retain(&navigation_->view()), std::move(browse));
}

Ref<DocumentFolderPage> UIDocumentPickerViewControllerPeer::page() const {
    return navigation_
               ? dynamicCast<DocumentFolderPage>(peerOf<UINavigationControllerPeer>(*navigation_).top())
               : nullptr;
}

std::string UIDocumentPickerViewControllerPeer::sheetTitle() const {
    const auto shown = page();
    return shown ? shown->peer().title() : "";
}

Ref<UINavigationItem> UIDocumentPickerViewControllerPeer::sheetBarItem() const {
    const auto shown = page();
    return shown ? retain<UINavigationItem>(&shown->navigationItem()) : nullptr;
}

std::vector<Presented::Item> UIDocumentPickerViewControllerPeer::sheetItems() const {
    std::vector<Presented::Item> items;
    const auto shown = page();
    for (const auto& entry : shown ? shown->entries() : std::vector<DocumentEntry>())
        items.push_back({.title = entry.name,
                         .description = {},
                         .symbol = entry.isFolder() ? "folder.fill" : "doc.fill",
                         .tint = {},
                         .tappable = shown->isSelectable(entry)});
    return items;
}

// Choosing.

std::expected<void, std::string>
UIDocumentPickerViewControllerPeer::pickFiles(const std::vector<std::string>& hostPaths) {
    return handOver(copiesOf(hostPaths));
}

void UIDocumentPickerViewControllerPeer::pickFromDevice(const std::string& path) {
    const auto copy = DocumentInbox::takeDeviceFile(path);
    static_cast<void>(handOver(copy ? Copies(std::vector{*copy}) : std::unexpected(copy.error())));
}

void UIDocumentPickerViewControllerPeer::browseHost() {
    Screen::current().fileDialog()->chooseFile(
        [weak = Weak<UIViewController>(&controller()), this](const std::string& path) {
            const auto kept = weak.strong();
            if (kept && presentation() != nullptr)
                static_cast<void>(pickFiles({path}));
        });
}

void UIDocumentPickerViewControllerPeer::cancelPicking() {
    controller().dismissViewControllerAnimated(true, {});
}

std::expected<std::string, std::string>
UIDocumentPickerViewControllerPeer::copyOf(const std::string& hostPath) const {
    if (!isOfOneOf(types_, hostPath))
        return std::unexpected(
            systemText("“%@” is not of a kind that can be chosen.", {lastPathComponent(hostPath)}));
    return DocumentInbox::takeHostFile(hostPath);
}

UIDocumentPickerViewControllerPeer::Copies
UIDocumentPickerViewControllerPeer::copiesOf(const std::vector<std::string>& hostPaths) const {
    if (hostPaths.size() != 1 && !allowsMultipleSelection_)
        return std::unexpected(systemText("One file is wanted."));
    std::vector<std::string> copies;
    for (const auto& path : hostPaths) {
        auto copy = copyOf(path);
        if (!copy) {
            std::ranges::for_each(copies, DocumentInbox::discard);
            return std::unexpected(copy.error());
        }
        copies.push_back(std::move(*copy));
    }
    return copies;
}

std::expected<void, std::string> UIDocumentPickerViewControllerPeer::handOver(const Copies& copies) {
    if (!copies) {
        complain(controller(), systemText("The File Cannot Be Opened"), copies.error());
        return std::unexpected(copies.error());
    }
    std::vector<Ref<NSObject>> urls;
    for (const auto& path : *copies)
        urls.emplace_back(NSURL::fileURLWithPath(path));
    const auto tell = [picker = retain<NSObject>(&controller()), delegate = delegate_,
                       urls = std::move(urls)] {
        const auto told = delegate.strong();
        if (told && told->respondsToSelector(pickedSelector))
            told->performSelector(pickedSelector, {picker, urls});
    };
    controller().dismissViewControllerAnimated(true, tell);
    return {};
}
