#pragma once

#include "Foundation/NSData.h"
#include "files/DeviceRoot.h"
#include "files/FileDescriptor.h"

#include <sys/stat.h>

#include <cstddef>
#include <expected>
#include <span>
#include <string>
#include <string_view>

/// An open regular file of the host. Opening never waits: a pipe, a device or a folder is refused with an
/// error instead. Failures are host error numbers.
class RegularFile {
public:
    /// Opens what a device path leads to, with the flags and mode of open(2).
    [[nodiscard]] static std::expected<RegularFile, int>
    open(const DeviceRoot& root, std::string_view devicePath, int flags, mode_t mode = 0);

    /// Opens the file of that name in a folder; a link is not followed.
    [[nodiscard]] static std::expected<RegularFile, int> openIn(int folder, const std::string& name,
                                                                int flags, mode_t mode = 0);

    /// Opens a file of the host for reading; links are followed.
    [[nodiscard]] static std::expected<RegularFile, int> openOnHost(const std::string& hostPath);

    /// What was known of the file when it was opened.
    [[nodiscard]] const struct stat& status() const { return status_; }

    /// Reads on. \returns how many bytes there were for `buffer`: fewer than it holds, or 0, at the end only
    [[nodiscard]] std::expected<std::size_t, int> read(std::span<std::byte> buffer);

    /// Reads all that is left. \returns `EFBIG` when that is more than the maximum
    [[nodiscard]] std::expected<NSData, int> readAll(std::size_t maximumSize);

    /// Reads all that is left and writes it to the other file at its place.
    [[nodiscard]] std::expected<void, int> copyTo(RegularFile& other);

    /// Writes all bytes at the current place.
    [[nodiscard]] std::expected<void, int> write(std::span<const std::byte> bytes);

    [[nodiscard]] int get() const { return file_.get(); }

    /// A path of the host that leads to this very file as long as it is open. One of any other kind could
    /// come to lead elsewhere meanwhile, out of the device's root at that.
    [[nodiscard]] std::string openPath() const;

private:
    RegularFile(FileDescriptor file, const struct stat& status);

    [[nodiscard]] static std::expected<RegularFile, int> check(FileDescriptor file);

    FileDescriptor file_;
    struct stat status_;
};
