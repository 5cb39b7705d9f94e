#include "UIKit/UINavigationBar.h"

#include "ObjectiveC/Class.h"
#include "navigation/UINavigationBarPeer.h"

namespace {

const Class classObject = Class::define<UINavigationBar, UIView>("UINavigationBar");

} // namespace

UINavigationBar::UINavigationBar() : UIView(std::make_unique<UINavigationBarPeer>()) {
    peerOf<UINavigationBarPeer>(*this).viewMade();
}

void UINavigationBar::setItems(const std::vector<Ref<UINavigationItem>>& items) {
    peerOf<UINavigationBarPeer>(*this).setItems(items);
}
