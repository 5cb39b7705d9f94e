#pragma once

#include "ObjectiveC/Weak.h"
#include "accessibility/AccessibilityElement.h"

#include <optional>

/// Which element of the screen the keyboard is at. Moves among those of what is presented topmost, or of the
/// application when nothing is. Made and owned by the window.
class KeyboardFocus {
public:
    /// Goes to the next element that something can be done with, or to the one before, round and round;
    /// scrolls it into view.
    void move(bool forward);

    void set(const Ref<UIView>& view) { view_ = Weak<UIView>(view); }

    void clear() { view_ = {}; }

    /// Nothing when the keyboard is nowhere, or where it was has gone.
    [[nodiscard]] std::optional<AccessibilityElement> element() const;

    /// The elements that there are now.
    [[nodiscard]] static std::vector<AccessibilityElement> elements();

private:
    Weak<UIView> view_;
};
