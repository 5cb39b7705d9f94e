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

void UILabel::setNumberOfLines(int lines) {
    send<"-[UILabel setNumberOfLines:]", void>(*this, std::int64_t{lines});
}

void UILabel::setLineBreakMode(NSLineBreakMode mode) {
    send<"-[UILabel setLineBreakMode:]", void>(*this, mode);
}

void UILabel::setAdjustsFontSizeToFitWidth(bool adjusts) {
    send<"-[UILabel setAdjustsFontSizeToFitWidth:]", void>(*this, adjusts);
}

void UILabel::setMinimumScaleFactor(double factor) {
    send<"-[UILabel setMinimumScaleFactor:]", void>(*this, factor);
}

void UILabel::setAdjustsFontForContentSizeCategory(bool adjusts) {
    send<"-[UILabel setAdjustsFontForContentSizeCategory:]", void>(*this, adjusts);
}

void UILabel::setShadowColor(const Ref<UIColor>& color) {
    send<"-[UILabel setShadowColor:]", void>(*this, color);
}

void UILabel::setShadowOffset(CGSize offset) {
    send<"-[UILabel setShadowOffset:]", void>(*this, offset);
}
