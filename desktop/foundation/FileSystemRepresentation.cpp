#include "System/FileSystemRepresentation.h"

#include "Device.h"
#include "files/RegularFile.h"

#include <fcntl.h>

#include <string>
#include <utility>

namespace {

constexpr mode_t newFileMode = 0644;

/// Null when it cannot be opened.
std::shared_ptr<const RegularFile> opened(std::string_view path, int flags) {
    auto file = RegularFile::open(Device::current().root(), path, flags, newFileMode);
    return file ? std::make_shared<const RegularFile>(std::move(*file)) : nullptr;
}

/// The name by whose number the host's kernel finds the open file again: one of any other kind could come to
/// lead out of the device's root meanwhile.
std::string nameOf(const RegularFile& file) {
    return "/proc/self/fd/" + std::to_string(file.get());
}

} // namespace

std::optional<FileSystemRepresentation> FileSystemRepresentation::ofFileForReading(std::string_view path) {
    const auto file = opened(path, O_RDONLY);
    return file ? std::optional(FileSystemRepresentation(nameOf(*file), file)) : std::nullopt;
}

std::optional<FileSystemRepresentation> FileSystemRepresentation::ofFileForWriting(std::string_view path) {
    const auto file = opened(path, O_WRONLY | O_CREAT);
    return file ? std::optional(FileSystemRepresentation(nameOf(*file), file)) : std::nullopt;
}
