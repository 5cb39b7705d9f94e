#include "System/FileSystemRepresentation.h"

#include <string>
#include <utility>

/// A device path as it stands.
struct FileSystemRepresentation::State {
    explicit State(std::string_view path) : name(path) {}

    /// None for a path that libraries would take for another one, or for the standard streams.
    static std::unique_ptr<State> of(std::string_view path) {
        const bool canNameAFile = !path.empty() && !path.contains('\0');
        return canNameAFile ? std::make_unique<State>(path) : nullptr;
    }

    std::string name;
};

std::optional<FileSystemRepresentation> FileSystemRepresentation::ofFileForReading(std::string_view path) {
    auto state = State::of(path);
    return state ? std::optional(FileSystemRepresentation(std::move(state))) : std::nullopt;
}

std::optional<FileSystemRepresentation> FileSystemRepresentation::ofFileForWriting(std::string_view path) {
    return ofFileForReading(path);
}

FileSystemRepresentation::FileSystemRepresentation(std::unique_ptr<State> state) : state_(std::move(state)) {}

FileSystemRepresentation::FileSystemRepresentation(FileSystemRepresentation&& other) noexcept = default;
FileSystemRepresentation&
FileSystemRepresentation::operator=(FileSystemRepresentation&& other) noexcept = default;
FileSystemRepresentation::~FileSystemRepresentation() = default;

const char* FileSystemRepresentation::c_str() const {
    return state_->name.c_str();
}
