#pragma once

#include "UIKit/UIView.h"

#include <string_view>

/// Watches for a short touch at one place of a view, within its subviews too but for controls. The view that
/// it is added to keeps it alive.
class UITapGestureRecognizer : public NSObject {
public:
    /// Sends `action` to `target`, with the recogniser when it takes something. The target is not kept alive,
    /// and gets nothing once it is gone.
    [[nodiscard]] static Ref<UITapGestureRecognizer> initWithTarget(NSObject& target,
                                                                    std::string_view action);

    /// Empty while it is added to none, and once that is gone.
    [[nodiscard]] virtual Ref<UIView> view() const = 0;
};
