#pragma once

#include "UIKit/UIColor.h"
#include "UIKit/UIImage.h"
#include "UIKit/UIMenu.h"

/// A button of a navigation bar.
class UIBarButtonItem : public NSObject {
public:
    /// A button that shows the image and opens the menu.
    [[nodiscard]] static Ref<UIBarButtonItem> initWithImage(const Ref<UIImage>& image,
                                                            const Ref<UIMenu>& menu);

    /// An empty one is the bar's own tint.
    virtual void setTintColor(const Ref<UIColor>& color) = 0;
};
