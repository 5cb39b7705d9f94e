#include "UIKit/UIResponder.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UIResponder> frameworkClass(
    "UIResponder",
    {overridable<"-[UIResponder becomeFirstResponder]", &UIResponder::becomeFirstResponder>()});

} // namespace

bool UIResponder::becomeFirstResponder() {
    return sendToBase<"-[UIResponder becomeFirstResponder]", bool>(*this);
}
