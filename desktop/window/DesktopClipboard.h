#pragma once

#include "typing/Clipboard.h"

/// The clipboard that the desktop's programs share. Made by the window; needs a QGuiApplication.
class DesktopClipboard final : public Clipboard {
public:
    // Clipboard:
    [[nodiscard]] std::string text() const override;
    void setText(const std::string& text) override;
    void setFiles(const std::vector<std::string>& urls) override;
};
