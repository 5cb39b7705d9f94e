#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// The name by which other libraries' functions, which know nothing of device paths, open a file of the
/// device. It is good for as long as the object lives, and leads to the file that the path led to at its
/// making.
class FileSystemRepresentation {
public:
    /// Of a file to read. Nothing when the path can name none, and where the platform sees already that it
    /// cannot be read.
    [[nodiscard]] static std::optional<FileSystemRepresentation> ofFileForReading(std::string_view path);

    /// Of a file to write, which may not be there yet; the platform may make it, empty, and leaves what one
    /// holds. Nothing when the path can name none, and where the platform sees already that it cannot be
    /// written.
    [[nodiscard]] static std::optional<FileSystemRepresentation> ofFileForWriting(std::string_view path);

    /// Valid until this object is moved or ends, and never empty.
    [[nodiscard]] const char* c_str() const { return name_.c_str(); }

private:
    /// \param kept what the name is good with, for as long as that lives; null for nothing
    FileSystemRepresentation(std::string name, std::shared_ptr<const void> kept)
        : name_(std::move(name)),
          kept_(std::move(kept)) {}

    std::string name_;
    std::shared_ptr<const void> kept_;
};
