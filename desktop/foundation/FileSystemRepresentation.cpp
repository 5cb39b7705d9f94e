#include "System/FileSystemRepresentation.h"

#include "Device.h"
#include "files/RegularFile.h"

#include <fcntl.h>

#include <string>
#include <utility>

namespace {

constexpr mode_t newFileMode = 0644;

} // namespace

/// The open file, by whose number the host's kernel finds it again: a name of any other kind could come to
/// lead out of the device's root meanwhile.
struct FileSystemRepresentation::State {
    explicit State(RegularFile opened)
        : file(std::move(opened)),
          name("/proc/self/fd/" + std::to_string(file.get())) {}

    static std::unique_ptr<State> open(std::string_view path, int flags) {
        auto file = RegularFile::open(Device::current().root(), path, flags, newFileMode);
        return file ? std::make_unique<State>(std::move(*file)) : nullptr;
    }

    RegularFile file;
    std::string name;
};

std::optional<FileSystemRepresentation> FileSystemRepresentation::ofFileForReading(std::string_view path) {
    auto state = State::open(path, O_RDONLY);
    return state ? std::optional(FileSystemRepresentation(std::move(state))) : std::nullopt;
}

std::optional<FileSystemRepresentation> FileSystemRepresentation::ofFileForWriting(std::string_view path) {
    auto state = State::open(path, O_WRONLY | O_CREAT);
    return state ? std::optional(FileSystemRepresentation(std::move(state))) : std::nullopt;
}

FileSystemRepresentation::FileSystemRepresentation(std::unique_ptr<State> state) : state_(std::move(state)) {}

FileSystemRepresentation::FileSystemRepresentation(FileSystemRepresentation&& other) noexcept = default;

FileSystemRepresentation&
FileSystemRepresentation::operator=(FileSystemRepresentation&& other) noexcept = default;

FileSystemRepresentation::~FileSystemRepresentation() = default;

const char* FileSystemRepresentation::c_str() const {
    return state_->name.c_str();
}
