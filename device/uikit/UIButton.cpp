#include "UIKit/UIButton.h"

#include "FrameworkClass.h"
#include "UIViewPeer.h"

namespace {

const FrameworkClassOf<UIButton, UIControl> frameworkClass("UIButton");

} // namespace

UIButton::UIButton() = default;

UIButton::UIButton(std::unique_ptr<UIViewPeer> peer) : UIControl(std::move(peer)) {}

Ref<UIButton> UIButton::buttonWithType(UIButtonType type) {
    return sendToClass<"+[UIButton buttonWithType:]", Ref<UIButton>>(type);
}

void UIButton::setImage(const Ref<UIImage>& image, UIControlState state) {
    send<"-[UIButton setImage:forState:]", void>(*this, image, state);
}

void UIButton::setImageEdgeInsets(const UIEdgeInsets& insets) {
    send<"-[UIButton setImageEdgeInsets:]", void>(*this, insets);
}

UIImageView& UIButton::imageView() const {
    return *send<"-[UIButton imageView]", Ref<UIImageView>>(*this);
}
