#include "UIKit/UITextField.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UITextField, UIControl> frameworkClass("UITextField");

} // namespace

UITextField::UITextField() = default;

std::string UITextField::text() const {
    return send<"-[UITextField text]", std::string>(*this);
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
