#include "UIKit/UITextField.h"

#include "ObjectiveC/Class.h"
#include "text/UITextFieldPeer.h"

#include <memory>

namespace {

const Class classObject = Class::define<UITextField, UIControl>("UITextField");

} // namespace

UITextField::UITextField() : UIControl(std::make_unique<UITextFieldPeer>()) {
    UITextFieldPeer::of(*this).setUp();
}

std::string UITextField::text() const {
    return UITextFieldPeer::of(*this).fieldText();
}

void UITextField::setText(const std::string& text) {
    UITextFieldPeer::of(*this).setText(text);
}

std::string UITextField::placeholder() const {
    return UITextFieldPeer::of(*this).fieldPlaceholder();
}

void UITextField::setPlaceholder(const std::string& placeholder) {
    UITextFieldPeer::of(*this).setPlaceholder(placeholder);
}

void UITextField::setBorderStyle(UITextBorderStyle style) {
    UITextFieldPeer::of(*this).setBorderStyle(style);
}

bool UITextField::becomeFirstResponder() {
    return UITextFieldPeer::of(*this).becomeFirstResponder();
}

bool UITextField::resignFirstResponder() {
    return UITextFieldPeer::of(*this).resignFirstResponder();
}

bool UITextField::isFirstResponder() const {
    return UITextFieldPeer::of(*this).fieldIsFirstResponder();
}
