#pragma once

#include <string>

/// What a text field tells of itself to scripts. The peer of a view that takes text derives from it.
class TextFieldContent {
public:
    virtual ~TextFieldContent() = default;

    /// Empty when there is none.
    [[nodiscard]] virtual std::string fieldPlaceholder() const = 0;
    [[nodiscard]] virtual std::string fieldText() const = 0;
    /// Whether it has the keyboard.
    [[nodiscard]] virtual bool fieldIsFirstResponder() const = 0;
};
