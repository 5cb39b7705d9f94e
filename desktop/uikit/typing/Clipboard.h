#pragma once

#include <string>
#include <vector>

/// The text or the files that were cut or copied last. Owned by the screen; a window gives it one that is the
/// desktop's.
class Clipboard {
public:
    Clipboard() = default;
    virtual ~Clipboard() = default;
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;

    /// In UTF-8; empty when there is none.
    [[nodiscard]] virtual std::string text() const { return text_; }

    virtual void setText(const std::string& text) { text_ = text; }

    /// For programs that take files, those; for others, their URLs as a text, one on a line.
    virtual void setFiles(const std::vector<std::string>& urls) {
        text_.clear();
        for (const auto& url : urls)
            text_ += (text_.empty() ? "" : "\n") + url;
    }

private:
    std::string text_;
};
