#pragma once

#include "UIKit/UIControl.h"
#include "keyboard/KeyBalloon.h"
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

    /// There while a finger is on the key; empty else.
    [[nodiscard]] const Ref<KeyBalloon>& balloon() const { return balloon_; }

    /// A finger has come upon the key, or has gone from it.
    void fingerDidChange(bool isOn);

private:
    /// Whether a finger on it has a balloon rise above it.
    [[nodiscard]] bool mayHaveBalloon() const;

    KeyboardLayout::Key key_;
    Pressed pressed_;
    Ref<KeyBalloon> balloon_;
    bool isShifted_ = false;
};
