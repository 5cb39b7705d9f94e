#pragma once

#include "UIKit/UIColor.h"
#include "UIKit/UIImage.h"
#include "UIKit/UIMenu.h"

#include <string_view>

/// How a button of a bar looks. The numbers are the platform's.
enum class UIBarButtonItemStyle : int {
    Plain = 0,
    Done = 2 ///< emphasised
};

/// A button of a navigation bar.
class UIBarButtonItem : public NSObject {
public:
    /// A button that shows the image and opens the menu.
    [[nodiscard]] static Ref<UIBarButtonItem> initWithImage(const Ref<UIImage>& image,
                                                            const Ref<UIMenu>& menu);

    /// A button that shows the title and sends `action` to `target`, with the item when it takes something.
    /// The target is not kept alive, and gets nothing once it is gone.
    [[nodiscard]] static Ref<UIBarButtonItem> initWithTitle(std::string_view title,
                                                            UIBarButtonItemStyle style, NSObject& target,
                                                            std::string_view action);

    /// An empty one is the bar's own tint.
    virtual void setTintColor(const Ref<UIColor>& color) = 0;
};
