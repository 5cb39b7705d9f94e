#pragma once

#include "UIKit/UIControl.h"

#include <string>

/// What is drawn around a text field. The numbers are the platform's.
enum class UITextBorderStyle : int { None = 0, Line = 1, Bezel = 2, RoundedRect = 3 };

/// A line of text that the user edits.
class UITextField : public UIControl {
public:
    UITextField();

    /// Empty when there is none.
    [[nodiscard]] std::string text() const;
    /// Shown while there is no text.
    void setPlaceholder(const std::string& placeholder);
    /// None until another is set.
    void setBorderStyle(UITextBorderStyle style);

    /// A field that is in no window has the keyboard as soon as it comes into one.
    bool becomeFirstResponder() override;
};
