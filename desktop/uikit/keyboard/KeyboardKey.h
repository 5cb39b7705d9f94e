#pragma once

#include "UIKit/UIControl.h"
#include "keyboard/KeyboardLayout.h"

#include <functional>

/// One key of the on-screen keyboard. Made by the keyboard's view for each key of the page that is shown.
class KeyboardKey final : public UIControl {
public:
    using Pressed = std::function<void(const KeyboardLayout::Key&)>;

    /// \param pressed called when the key does what it is for
    KeyboardKey(const KeyboardLayout::Key& key, Pressed pressed);

    [[nodiscard]] const KeyboardLayout::Key& key() const { return key_; }

    /// Whether letters are written large, and the key for that stands out.
    void setShifted(bool shifted);

    [[nodiscard]] bool isShifted() const { return isShifted_; }

private:
    KeyboardLayout::Key key_;
    Pressed pressed_;
    bool isShifted_ = false;
};
