#pragma once

#include "Message.h"
#include "UIKit/UIColor.h"

/// A colour as layers take it; null for none.
inline void* coreColor(const Ref<UIColor>& color) {
    return send<"-[UIColor CGColor]", void*>(objectOf(color.get()));
}
