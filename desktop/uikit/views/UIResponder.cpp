#include "UIKit/UIResponder.h"

bool UIResponder::becomeFirstResponder() {
    return false;
}
