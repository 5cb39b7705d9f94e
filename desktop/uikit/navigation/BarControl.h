#pragma once

#include "UIKit/UIControl.h"

/// A button of a bar: its content turns pale while it is pressed. The kinds of buttons derive from it.
class BarControl : public UIControl {
public:
    BarControl();

    /// What is shown, as large as the button and not touched itself.
    [[nodiscard]] UIView& content() const { return *content_; }

    /// Keeps the look of being pressed after the finger is gone.
    void setHeld(bool held);

    /// Looks at whether the button is pressed.
    void updateLook();

    // UIView:
    void layoutSubviews() override;

private:
    Ref<UIView> content_;
    bool isHeld_ = false;
    bool isPale_ = false;
};
