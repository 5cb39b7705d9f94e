#include "UIKit/UIButton.h"

#include "ObjectiveC/Class.h"
#include "controls/UIButtonPeer.h"

#include <utility>

namespace {

const Class classObject = Class::define<UIButton, UIControl>("UIButton");

} // namespace

UIButton::UIButton() : UIButton(std::make_unique<UIButtonPeer>()) {}

UIButton::UIButton(std::unique_ptr<UIViewPeer> peer) : UIControl(std::move(peer)) {
    peerOf<UIButtonPeer>(*this).viewMade();
}

Ref<UIButton> UIButton::buttonWithType(UIButtonType type) {
    auto button = make<UIButton>();
    peerOf<UIButtonPeer>(*button).becomeOfType(type);
    return button;
}

void UIButton::setImage(const Ref<UIImage>& image, UIControlState /*state*/) {
    peerOf<UIButtonPeer>(*this).setImage(image);
}

void UIButton::setImageEdgeInsets(const UIEdgeInsets& insets) {
    peerOf<UIButtonPeer>(*this).setImageInsets(insets);
}

UIImageView& UIButton::imageView() const {
    return peerOf<UIButtonPeer>(*this).imageView();
}
