#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>

/// A file of the device that is given to the host. Never leads outside the device root. Failures are texts
/// for the user.
class SharedFile {
public:
    /// \param path on the device
    explicit SharedFile(std::string path) : path_(std::move(path)) {}

    [[nodiscard]] std::string name() const;

    /// In bytes; nothing for what is no file.
    [[nodiscard]] std::optional<std::uint64_t> size() const;

    /// The URL that programs of the host find the file itself by.
    [[nodiscard]] std::expected<std::string, std::string> hostUrl() const;

    /// Copies the file into a folder of the host, whole or not at all. A file there of that name stays, and
    /// is a failure.
    [[nodiscard]] std::expected<void, std::string> copyTo(const std::string& hostFolder) const;

private:
    [[nodiscard]] std::string problem(int error) const;

    std::string path_;
};
