#include "UIKit/UITextField.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UITextField, UIControl> frameworkClass("UITextField");

} // namespace

UITextField::UITextField() = default;

std::string UITextField::text() const {
    return send<"-[UITextField text]", std::string>(*this);
}

void UITextField::setText(const std::string& text) {
    send<"-[UITextField setText:]", void>(*this, text);
}

std::string UITextField::placeholder() const {
    return send<"-[UITextField placeholder]", std::string>(*this);
}

void UITextField::setPlaceholder(const std::string& placeholder) {
    send<"-[UITextField setPlaceholder:]", void>(*this, placeholder);
}

void UITextField::setBorderStyle(UITextBorderStyle style) {
    send<"-[UITextField setBorderStyle:]", void>(*this, style);
}

bool UITextField::becomeFirstResponder() {
    return UIControl::becomeFirstResponder();
}

bool UITextField::resignFirstResponder() {
    return UIControl::resignFirstResponder();
}

bool UITextField::isFirstResponder() const {
    return UIControl::isFirstResponder();
}
