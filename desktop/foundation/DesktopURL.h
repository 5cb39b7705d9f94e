#pragma once

#include "Foundation/NSURL.h"

#include <string>

/// A URL in its text form. Made by `NSURL`'s functions.
class DesktopURL final : public NSURL {
public:
    explicit DesktopURL(std::string text) : text_(std::move(text)) {}

    /// All of it, percent-encoded.
    [[nodiscard]] const std::string& absoluteString() const { return text_; }

    // NSURL:
    [[nodiscard]] std::string path() const override;
    [[nodiscard]] std::string lastPathComponent() const override;
    [[nodiscard]] std::string pathExtension() const override;

    /// Nothing is out of the application's reach that it is given the URL of.
    [[nodiscard]] bool startAccessingSecurityScopedResource() const override { return false; }

    void stopAccessingSecurityScopedResource() const override {}

    // NSObject:
    [[nodiscard]] std::string description() const override { return text_; }

private:
    const std::string text_;
};
