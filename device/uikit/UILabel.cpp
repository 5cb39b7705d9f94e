#include "UIKit/UILabel.h"

#include "FrameworkClass.h"
#include "UIViewPeer.h"

namespace {

const FrameworkClassOf<UILabel, UIView> frameworkClass("UILabel");

} // namespace

UILabel::UILabel() = default;

UILabel::UILabel(std::unique_ptr<UIViewPeer> peer) : UIView(std::move(peer)) {}

void UILabel::setText(const std::optional<std::string>& text) {
    send<"-[UILabel setText:]", void>(*this, text);
}

void UILabel::setFont(const Ref<UIFont>& font) {
    send<"-[UILabel setFont:]", void>(*this, font);
}

void UILabel::setTextColor(const Ref<UIColor>& color) {
    send<"-[UILabel setTextColor:]", void>(*this, color);
}

void UILabel::setTextAlignment(NSTextAlignment alignment) {
    send<"-[UILabel setTextAlignment:]", void>(*this, alignment);
}
