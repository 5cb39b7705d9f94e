#include "OBWelcomeControllerPeer.h"

#include "DesktopImage.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

namespace {

/// Empty for a picture, and for no image.
std::string symbolNameOf(const Ref<UIImage>& image) {
    const auto symbol = dynamicCast<DesktopImage>(image);
    return symbol ? symbol->symbolName() : std::string();
}

} // namespace

OBWelcomeControllerPeer::OBWelcomeControllerPeer() : welcomeView_(make<WelcomeView>()) {}

Ref<UIView> OBWelcomeControllerPeer::makeView() {
    welcomeView_->setFrame(Screen::current().bounds());
    welcomeView_->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    return welcomeView_;
}

std::string OBWelcomeControllerPeer::sheetTitle() const {
    return welcomeView_->header().content().title;
}

std::string OBWelcomeControllerPeer::sheetDetail() const {
    return welcomeView_->header().content().detail;
}

std::string OBWelcomeControllerPeer::sheetSymbol() const {
    return symbolNameOf(welcomeView_->header().content().image);
}

std::vector<Presented::Item> OBWelcomeControllerPeer::sheetItems() const {
    std::vector<Presented::Item> items;
    for (const auto& item : welcomeView_->list().items()) {
        const auto& content = item->content();
        items.push_back({.title = content.title,
                         .description = content.description,
                         .symbol = symbolNameOf(content.image),
                         .tint = item->peer().ownTintColor(),
                         .tappable = item->isTappable()});
    }
    return items;
}
