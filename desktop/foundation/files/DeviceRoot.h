#pragma once

#include "files/FileDescriptor.h"

#include <sys/types.h>

#include <expected>
#include <string>
#include <string_view>

/// A folder of the host that stands for the device's file system. Every device path is resolved inside it:
/// "/" is the folder itself, "..", absolute links and chains of links stay within, also while somebody
/// changes the tree. Paths that do not start with "/" are taken from there too. Failures are host error
/// numbers: `ENOENT`, also for an empty path, `EINVAL` for one with a NUL byte, ... Any thread.
class DeviceRoot {
public:
    /// How paths are resolved: by the kernel (openat2), or component by component where the kernel cannot.
    enum class Resolution { Kernel, ByHand };

    /// Opens the folder, which is made with its parents when it is missing. Paths are resolved by the kernel
    /// if it can.
    [[nodiscard]] static std::expected<DeviceRoot, int> open(const std::string& hostFolder);

    /// The same with a chosen way of resolving.
    [[nodiscard]] static std::expected<DeviceRoot, int> open(const std::string& hostFolder,
                                                             Resolution resolution);

    /// A thing's place: the folder that holds it, and its name there, which is not resolved any further. For
    /// the root itself, and for paths that end in "." or "..", the folder itself and ".".
    struct Place {
        FileDescriptor folder;
        std::string name;
    };

    /// Opens what a device path leads to, links followed, with the flags and mode of open(2); closed on exec.
    /// Flags that make no sense together are refused with `EINVAL`.
    [[nodiscard]] std::expected<FileDescriptor, int> open(std::string_view devicePath, int flags,
                                                          mode_t mode = 0) const;

    /// Finds where a device path's last component is, or would be made; the links before it are followed. A
    /// "/" at the end counts for nothing.
    [[nodiscard]] std::expected<Place, int> locate(std::string_view devicePath) const;

    /// The host's folder, as given.
    [[nodiscard]] const std::string& hostFolder() const { return hostFolder_; }

    /// The way in use.
    [[nodiscard]] Resolution resolution() const { return resolution_; }

private:
    DeviceRoot(FileDescriptor folder, std::string hostFolder, Resolution resolution);

    [[nodiscard]] std::expected<FileDescriptor, int> openByKernel(const std::string& path, int flags,
                                                                  mode_t mode) const;

    FileDescriptor folder_;
    std::string hostFolder_;
    Resolution resolution_;
};
