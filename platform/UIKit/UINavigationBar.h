#pragma once

#include "UIKit/UINavigationItem.h"
#include "UIKit/UIView.h"

#include <vector>

/// A bar with a title and buttons, at the top of what it is for. A navigation controller has one of its own;
/// another one shows what it is told to.
class UINavigationBar : public UIView {
public:
    UINavigationBar();

    /// Shows the last one of them; nothing when there is none.
    void setItems(const std::vector<Ref<UINavigationItem>>& items);
};
