#pragma once

#include "system/LibraryFiles.h"

#include <expected>
#include <string>

/// A bundle's code, loaded into this process. Loaded for as long as the object lives, or anybody else holds
/// it too. Made and owned by its bundle.
class BundleCode {
public:
    /// Loads a library by device path; every symbol that it needs must be found at once.
    /// \returns or why it cannot be loaded, as a sentence
    [[nodiscard]] static std::expected<BundleCode, std::string> load(const std::string& devicePath);

private:
    explicit BundleCode(LibraryFiles::Handle handle) : handle_(std::move(handle)) {}

    LibraryFiles::Handle handle_;
};
