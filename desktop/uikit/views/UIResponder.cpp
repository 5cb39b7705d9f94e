#include "UIKit/UIResponder.h"

bool UIResponder::becomeFirstResponder() {
    return false;
}

bool UIResponder::resignFirstResponder() {
    return true;
}

bool UIResponder::isFirstResponder() const {
    return false;
}
