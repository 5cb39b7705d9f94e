#include "presentation/PresentedPage.h"

#include "ObjectiveC/Class.h"
#include "controllers/DesktopNavigationItem.h"
#include "navigation/UINavigationBarPeer.h"
#include "navigation/UINavigationControllerPeer.h"
#include "screen/FilePicker.h"

#include <utility>

namespace {

Ref<UIViewController> pageOf(const Ref<UIViewController>& controller) {
    if (const auto navigation = dynamicCast<UINavigationController>(controller)) {
        if (auto top = peerOf<UINavigationControllerPeer>(*navigation).top())
            return top;
    }
    return controller;
}

/// What a bar shows that the page has put into its view by itself; empty when it has none.
Ref<UINavigationItem> itemOfOwnBar(const UIView& view) {
    for (const auto& subview : view.peer().subviews()) {
        const auto bar = dynamicCast<UINavigationBar>(subview);
        if (const auto content = bar ? peerOf<UINavigationBarPeer>(*bar).content() : nullptr)
            return content->item();
    }
    return nullptr;
}

} // namespace

PresentedPage::PresentedPage(Ref<UIViewController> controller)
    : controller_(std::move(controller)),
      page_(pageOf(controller_)) {}

const SheetContent* PresentedPage::content() const {
    return page_ ? peerIf<SheetContent>(*page_) : nullptr;
}

FilePicker* PresentedPage::filePicker() const {
    return page_ ? peerIf<FilePicker>(*page_) : nullptr;
}

std::string_view PresentedPage::kind() const {
    return content() != nullptr ? content()->sheetKind() : "sheet";
}

std::string PresentedPage::title() const {
    auto title = content() != nullptr ? content()->sheetTitle() : std::string();
    if (title.empty() && page_)
        title = page_->peer().navigationItem().title();
    return title;
}

Ref<UINavigationItem> PresentedPage::barItem() const {
    if (page_ != controller_)
        return retain<UINavigationItem>(&page_->navigationItem());
    auto item = content() != nullptr ? content()->sheetBarItem() : nullptr;
    return item || !page_ ? item : itemOfOwnBar(page_->view());
}

Presented::Details PresentedPage::details() const {
    Presented::Details details;
    details.controllerClass = controller_ ? controller_->isa().name() : "";
    details.barItem = barItem();
    if (const auto* const told = content()) {
        details.detail = told->sheetDetail();
        details.symbol = told->sheetSymbol();
        details.items = told->sheetItems();
        details.urls = told->sheetUrls();
    }
    return details;
}
