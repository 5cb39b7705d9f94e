#pragma once

/// The on-screen keyboard as the screen knows it: there for a first responder.
class ScreenKeyboard {
public:
    virtual ~ScreenKeyboard() = default;

    /// Slides in or out from where it is, and with it goes what must not be covered.
    virtual void setShown(bool shown) = 0;
    /// It is gone at once, for when an application ends and with it what follows a slide.
    virtual void hideAtOnce() = 0;
    [[nodiscard]] virtual bool isShown() const = 0;
};
