#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "UIKit/UIView.h"
#include "views/Accessibility.h"

#include <string>
#include <vector>

/// One thing on the screen as assistive programs and the keyboard meet it. Found in the views, and true until
/// they change.
struct AccessibilityElement {
    Ref<UIView> view;
    std::string label; ///< may be empty
    std::string value; ///< what it is set to: "1" and "0" for a switch
    AccessibilityRole role = AccessibilityRole::None;
    CGRect frame; ///< in points of the screen

    /// Whether there is something to do with it; what is only read is no stop for the keyboard.
    [[nodiscard]] bool isStop() const;

    /// Whether its value is a yes or a no, "1" or "0".
    [[nodiscard]] bool isCheckable() const {
        return role == AccessibilityRole::Switch || role == AccessibilityRole::Choice;
    }

    /// Those that are a view or within it, as they are read: line by line from the top, and in a line from
    /// the left. What is not to be seen is left out.
    [[nodiscard]] static std::vector<AccessibilityElement> allIn(UIView& root);

    /// What the view alone is. Without a name of its own it is called as what it is in.
    [[nodiscard]] static AccessibilityElement of(UIView& view);
};

/// What the user deals with: what is presented topmost, or else the application's window in front. Null while
/// there is none.
[[nodiscard]] UIView* viewInFront();

/// Whether the view itself is drawn: neither hidden nor transparent.
[[nodiscard]] bool isShown(const UIView& view);

/// Scrolls all that the view is in by as little as shows it.
void scrollIntoView(UIView& view);
