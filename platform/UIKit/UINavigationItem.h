#pragma once

#include "UIKit/UIBarButtonItem.h"
#include "UIKit/UIView.h"

#include <vector>

/// What a navigation bar shows for one view controller. Made and owned by the controller.
class UINavigationItem : public NSObject {
public:
    /// Shown in the middle of the bar in place of the title.
    virtual void setTitleView(const Ref<UIView>& view) = 0;

    /// The first one is nearest to the bar's edge.
    virtual void setRightBarButtonItems(std::vector<Ref<UIBarButtonItem>> items) = 0;
};
