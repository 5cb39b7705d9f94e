#include "UIKit/UIResponder.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UIResponder>
    frameworkClass("UIResponder",
                   {overridable<"-[UIResponder becomeFirstResponder]", &UIResponder::becomeFirstResponder>(),
                    overridable<"-[UIResponder resignFirstResponder]", &UIResponder::resignFirstResponder>(),
                    overridable<"-[UIResponder isFirstResponder]", &UIResponder::isFirstResponder>()});

} // namespace

bool UIResponder::becomeFirstResponder() {
    return sendToBase<"-[UIResponder becomeFirstResponder]", bool>(*this);
}

bool UIResponder::resignFirstResponder() {
    return sendToBase<"-[UIResponder resignFirstResponder]", bool>(*this);
}

bool UIResponder::isFirstResponder() const {
    return sendToBase<"-[UIResponder isFirstResponder]", bool>(*this);
}
