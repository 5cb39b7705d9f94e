#include "UIKit/UITextField.h"

#include "ObjectiveC/Class.h"
#include "text/UITextFieldPeer.h"

#include <memory>

namespace {

const Class classObject = Class::define<UITextField, UIControl>("UITextField");

} // namespace

UITextField::UITextField() : UIControl(std::make_unique<UITextFieldPeer>()) {
    peerOf<UITextFieldPeer>(*this).setUp();
}

std::string UITextField::text() const {
    return peerOf<UITextFieldPeer>(*this).fieldText();
}

void UITextField::setPlaceholder(const std::string& placeholder) {
    peerOf<UITextFieldPeer>(*this).setPlaceholder(placeholder);
}

void UITextField::setBorderStyle(UITextBorderStyle style) {
    peerOf<UITextFieldPeer>(*this).setBorderStyle(style);
}

bool UITextField::becomeFirstResponder() {
    return peerOf<UITextFieldPeer>(*this).becomeFirstResponder();
}
