#pragma once

#include "KeyboardView.h"
#include "UIWindow.h"

/// The on-screen keyboard in its window, above all but the system's bars: slides up for a first responder,
/// and down again. Part of the screen.
class Keyboard {
public:
    /// Slides in or out from where it is, and with it goes what must not be covered.
    void setShown(bool shown);

    /// It is gone at once, for when an application ends and with it what follows a slide.
    void hideAtOnce();

    [[nodiscard]] bool isShown() const { return isShown_; }

    /// Empty before it is first shown.
    [[nodiscard]] const Ref<KeyboardView>& view() const { return view_; }

private:
    void makeWindow();
    void slide();

    Ref<UIWindow> window_;
    Ref<KeyboardView> view_;
    bool isShown_ = false;
};
