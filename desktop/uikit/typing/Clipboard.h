#pragma once

#include <string>

/// The text that was cut or copied last. Owned by the screen; a window gives it one that is the desktop's.
class Clipboard {
public:
    Clipboard() = default;
    virtual ~Clipboard() = default;
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;

    /// In UTF-8; empty when there is none.
    [[nodiscard]] virtual std::string text() const { return text_; }

    virtual void setText(const std::string& text) { text_ = text; }

private:
    std::string text_;
};
