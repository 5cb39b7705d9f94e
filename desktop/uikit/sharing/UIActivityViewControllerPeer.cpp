#include "sharing/UIActivityViewControllerPeer.h"

#include "DesktopColor.h"
#include "DesktopURL.h"
#include "screen/Screen.h"

Ref<UIView> UIActivityViewControllerPeer::makeView() {
    auto view = make<UIView>();
    view->setBackgroundColor(DesktopColor::system(SystemColor::GroupedBackground));
    return view;
}

std::string UIActivityViewControllerPeer::obstacle() const {
    const auto isPad = Screen::current().traits().idiom == Idiom::Pad;
    return isPad && !popover_->sourceView() ? "in a popover that has no source" : "";
}

std::string UIActivityViewControllerPeer::sheetTitle() const {
    return items_.empty() ? std::string() : items_.front()->lastPathComponent();
}

std::vector<std::string> UIActivityViewControllerPeer::sheetUrls() const {
    std::vector<std::string> urls;
    for (const auto& item : items_)
        urls.push_back(dynamicCast<DesktopURL>(item)->absoluteString());
    return urls;
}
