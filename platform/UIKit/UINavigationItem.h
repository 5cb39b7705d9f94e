#pragma once

#include "UIKit/UIBarButtonItem.h"
#include "UIKit/UIView.h"

#include <string_view>
#include <vector>

/// What a navigation bar shows for one page. Made and owned by the page's controller, or by whoever shows a
/// bar of its own.
class UINavigationItem : public NSObject {
public:
    [[nodiscard]] static Ref<UINavigationItem> initWithTitle(std::string_view title);

    /// Shown in the middle of the bar in place of the title.
    virtual void setTitleView(const Ref<UIView>& view) = 0;

    /// Shows that button alone; empty for none.
    virtual void setLeftBarButtonItem(const Ref<UIBarButtonItem>& item) = 0;
    virtual void setRightBarButtonItem(const Ref<UIBarButtonItem>& item) = 0;

    /// The first one is nearest to the bar's edge.
    virtual void setRightBarButtonItems(std::vector<Ref<UIBarButtonItem>> items) = 0;
};
