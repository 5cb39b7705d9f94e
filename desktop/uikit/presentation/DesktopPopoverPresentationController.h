#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIPopoverPresentationController.h"

/// What a popover points to. Made by the peer of the controller that is shown in it.
class DesktopPopoverPresentationController final : public UIPopoverPresentationController {
public:
    /// Empty until it is set, and once the view is gone.
    [[nodiscard]] Ref<UIView> sourceView() const { return sourceView_.strong(); }

    /// In points of the screen. \pre there is a source view
    [[nodiscard]] CGRect sourceOnScreen() const;

    // UIPopoverPresentationController:
    void setSourceView(UIView& view) override { sourceView_ = Weak<UIView>(&view); }

    void setSourceRect(const CGRect& rect) override { sourceRect_ = rect; }

private:
    Weak<UIView> sourceView_;
    CGRect sourceRect_;
};
