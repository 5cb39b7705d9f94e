#include "System/FileSystemRepresentation.h"

/// A device path as it stands. None for a path that libraries would take for another one, or for the standard
/// streams.
std::optional<FileSystemRepresentation> FileSystemRepresentation::ofFileForReading(std::string_view path) {
    if (path.empty() || path.contains('\0'))
        return std::nullopt;
    return FileSystemRepresentation(std::string(path), nullptr);
}

std::optional<FileSystemRepresentation> FileSystemRepresentation::ofFileForWriting(std::string_view path) {
    return ofFileForReading(path);
}
