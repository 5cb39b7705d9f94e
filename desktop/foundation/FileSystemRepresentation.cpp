#include "System/FileSystemRepresentation.h"

#include "CreationNote.h"
#include "Device.h"
#include "files/RegularFile.h"

#include <fcntl.h>

#include <utility>

namespace {

constexpr mode_t newFileMode = 0644;

/// Null when it cannot be opened.
std::shared_ptr<const RegularFile> opened(std::string_view path, int flags) {
    auto file = RegularFile::open(Device::current().root(), path, flags, newFileMode);
    return file ? std::make_shared<const RegularFile>(std::move(*file)) : nullptr;
}

} // namespace

std::optional<FileSystemRepresentation> FileSystemRepresentation::ofFileForReading(std::string_view path) {
    const auto file = opened(path, O_RDONLY);
    return file ? std::optional(FileSystemRepresentation(file->openPath(), file)) : std::nullopt;
}

std::optional<FileSystemRepresentation> FileSystemRepresentation::ofFileForWriting(std::string_view path) {
    const CreationNote note(path);
    const auto file = opened(path, O_WRONLY | O_CREAT);
    if (!file)
        return std::nullopt;
    note.made();
    return FileSystemRepresentation(file->openPath(), file);
}
