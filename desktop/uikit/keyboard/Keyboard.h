#pragma once

#include "keyboard/KeyboardView.h"
#include "screen/ScreenKeyboard.h"
#include "screen/UIWindow.h"

/// The on-screen keyboard in its window, above all but the system's bars: slides up for a first responder,
/// and down again. Part of the screen.
class Keyboard final : public ScreenKeyboard {
public:
    /// Empty before it is first shown.
    [[nodiscard]] const Ref<KeyboardView>& view() const { return view_; }

    // ScreenKeyboard:
    void setShown(bool shown) override;
    void hideAtOnce() override;

    [[nodiscard]] bool isShown() const override { return isShown_; }

private:
    void makeWindow();
    void serveAnotherText();
    void slide();

    Ref<UIWindow> window_;
    Ref<KeyboardView> view_;
    bool isShown_ = false;
};
