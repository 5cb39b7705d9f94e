#pragma once

#include "UIKit/UIImage.h"
#include "specifiers/DesktopSpecifier.h"

#include <expected>
#include <string>

/// The picture that is kept for a row: the file "<key>-IMG" in the folder of its domain's name, beside the
/// preferences.
class RowImage {
public:
    explicit RowImage(DesktopSpecifier& row) : row_(row) {}

    /// By device path; empty for a row that names no place.
    [[nodiscard]] std::string path() const;

    /// Empty when there is none, or it cannot be read.
    [[nodiscard]] Ref<UIImage> image() const;

    [[nodiscard]] bool exists() const;

    /// Keeps a copy of a file of the host as it is, if it is a picture of a kind that is known, and posts the
    /// row's "PostNotification". A failure has a text for the user, and changes nothing.
    [[nodiscard]] std::expected<void, std::string> keep(const std::string& hostPath) const;

    /// The same for no picture.
    void remove() const;

private:
    void post() const;

    DesktopSpecifier& row_;
};
