#pragma once

#include "Foundation/NSFileManager.h"

#include <string>
#include <vector>

/// A file or folder of the device that the user may choose or look into.
struct DocumentEntry {
    std::string name;
    NSFileAttributes attributes;

    [[nodiscard]] bool isFolder() const { return attributes.fileType == NSFileType::Directory; }
};

/// What is in a folder of the device, by name as people sort; without what is hidden, and without anything
/// that is neither a file nor a folder. Empty when it cannot be read.
[[nodiscard]] std::vector<DocumentEntry> documentsIn(const std::string& folder);
