#include "sharing/UIActivityViewControllerPeer.h"

#include "DesktopURL.h"
#include "Device.h"
#include "Foundation/NSLog.h"
#include "SystemTexts.h"
#include "alerts/Complaint.h"
#include "documents/FileSizeText.h"
#include "presentation/PopoverPresentationView.h"
#include "screen/Screen.h"
#include "system/UrlOpener.h"

#include <array>
#include <utility>

namespace {

constexpr double popoverWidth = 375;

bool isPad() {
    return Screen::current().traits().idiom == Idiom::Pad;
}

struct ActivityLook {
    const char* title;
    const char* symbol;
};

constexpr ActivityLook copyLook{.title = "Copy", .symbol = "doc.on.doc"};
constexpr ActivityLook saveLook{.title = "Save to Folder…", .symbol = "folder"};
constexpr ActivityLook openLook{.title = "Open With…", .symbol = "arrow.up.right.square"};
constexpr std::array looks{copyLook, saveLook, openLook};

} // namespace

UIActivityViewControllerPeer::UIActivityViewControllerPeer(const std::vector<Ref<NSURL>>& items) {
    for (const auto& item : items) {
        urls_.push_back(dynamicCast<DesktopURL>(item)->absoluteString());
        files_.emplace_back(item->path());
    }
}

// What is shown.

Ref<UIView> UIActivityViewControllerPeer::makeView() {
    std::function<void()> close;
    if (!isPad()) // there a tap beside the popover does it
        close = [this] { cancelPicking(); };
    return make<ShareView>(make<ShareHeaderView>(sheetTitle(), sheetDetail(), std::move(close)),
                           activities());
}

Ref<PresentationView> UIActivityViewControllerPeer::makePresentationView() {
    if (!isPad())
        return UIViewControllerPeer::makePresentationView();
    return make<PopoverPresentationView>(controller(), popover_,
                                         CGSize{popoverWidth, ShareView::heightFor(looks.size())});
}

std::string UIActivityViewControllerPeer::obstacle() const {
    return isPad() && !popover_->sourceView() ? "in a popover that has no source" : "";
}

std::optional<double> UIActivityViewControllerPeer::sheetHeight() const {
    return ShareView::heightFor(looks.size());
}

std::string UIActivityViewControllerPeer::sheetTitle() const {
    return files_.size() == 1 ? files_.front().name()
                              : systemText("%@ Documents", {std::to_string(files_.size())});
}

std::string UIActivityViewControllerPeer::sheetDetail() const {
    std::uint64_t size = 0;
    for (const auto& file : files_)
        size += file.size().value_or(0);
    return fileSizeText(size);
}

std::vector<Presented::Item> UIActivityViewControllerPeer::sheetItems() const {
    std::vector<Presented::Item> items;
    items.reserve(looks.size());
    for (const auto& look : looks)
        items.push_back({.title = systemText(look.title),
                         .description = {},
                         .symbol = look.symbol,
                         .tint = {},
                         .tappable = true});
    return items;
}

std::vector<std::string> UIActivityViewControllerPeer::sheetUrls() const {
    return urls_;
}

std::vector<ShareView::Activity> UIActivityViewControllerPeer::activities() {
    return {{.title = systemText(copyLook.title),
             .symbol = copyLook.symbol,
             .perform = [this] { static_cast<void>(finish(copy())); }},
            {.title = systemText(saveLook.title),
             .symbol = saveLook.symbol,
             .perform = [this] { chooseFolder(); }},
            {.title = systemText(openLook.title), .symbol = openLook.symbol, .perform = [this] {
                 static_cast<void>(finish(openWithHost()));
             }}};
}

// What is done.

std::expected<std::vector<std::string>, std::string> UIActivityViewControllerPeer::hostUrls() const {
    std::vector<std::string> urls;
    for (const auto& file : files_) {
        auto url = file.hostUrl();
        if (!url)
            return std::unexpected(url.error());
        urls.push_back(std::move(*url));
    }
    return urls;
}

UIActivityViewControllerPeer::Outcome UIActivityViewControllerPeer::copy() {
    const auto urls = hostUrls();
    if (!urls)
        return std::unexpected(urls.error());
    Screen::current().clipboard().setFiles(*urls);
    return {};
}

UIActivityViewControllerPeer::Outcome UIActivityViewControllerPeer::openWithHost() {
    const auto urls = hostUrls();
    if (!urls)
        return std::unexpected(urls.error());
    for (const auto& url : *urls) {
        if (!Device::current().urls().open(url))
            return std::unexpected(systemText("No application opened it."));
    }
    return {};
}

void UIActivityViewControllerPeer::chooseFolder() {
    auto* const dialog = Screen::current().fileDialog();
    if (dialog == nullptr) {
        NSLog("There is no window here in which a folder could be chosen.");
        return;
    }
    dialog->chooseFolder([weak = Weak<UIViewController>(&controller()), this](const std::string& folder) {
        const auto kept = weak.strong();
        if (kept && presentation() != nullptr)
            static_cast<void>(pickFiles({folder}));
    });
}

UIActivityViewControllerPeer::Outcome
UIActivityViewControllerPeer::save(const std::vector<std::string>& hostFolders) {
    if (hostFolders.size() != 1)
        return std::unexpected(systemText("One folder is wanted."));
    for (const auto& file : files_) {
        if (auto copied = file.copyTo(hostFolders.front()); !copied)
            return copied;
    }
    return {};
}

std::expected<void, std::string>
UIActivityViewControllerPeer::pickFiles(const std::vector<std::string>& hostPaths) {
    return finish(save(hostPaths));
}

void UIActivityViewControllerPeer::cancelPicking() {
    controller().dismissViewControllerAnimated(true, {});
}

UIActivityViewControllerPeer::Outcome UIActivityViewControllerPeer::finish(const Outcome& outcome) {
    if (outcome)
        controller().dismissViewControllerAnimated(true, {});
    else
        complain(controller(), systemText("The File Could Not Be Shared"), outcome.error());
    return outcome;
}
