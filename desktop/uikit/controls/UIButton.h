#pragma once

#include "UIKit/UIControl.h"

class UIButtonPeer;

/// A title, an image, or both, that can be pressed. What it does is its peer's. Made by whoever shows it.
class UIButton : public UIControl {
public:
    UIButton();

protected:
    explicit UIButton(std::unique_ptr<UIButtonPeer> peer);
};
