#pragma once

#include "UIKit/UIControl.h"

class UIButtonPeer;

/// A title, an image, or both, that can be pressed. What it does is its peer's. Made by whoever shows it.
class UIButton : public UIControl {
public:
    UIButton();

    /// The same as the view's, by its own class.
    // NOLINTNEXTLINE(bugprone-derived-method-shadowing-base-method)
    [[nodiscard]] UIButtonPeer& peer() const;

protected:
    explicit UIButton(std::unique_ptr<UIButtonPeer> peer);
};
