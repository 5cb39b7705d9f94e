#include "DeviceRoot.h"

#include <sys/syscall.h>

#include <fcntl.h>
#include <linux/openat2.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

DeviceRoot::DeviceRoot(FileDescriptor folder, std::string hostFolder, Resolution resolution)
    : folder_(std::move(folder)),
      hostFolder_(std::move(hostFolder)),
      resolution_(resolution) {}

std::expected<DeviceRoot, int> DeviceRoot::open(const std::string& hostFolder) {
    return open(hostFolder, Resolution::Kernel);
}

std::expected<DeviceRoot, int> DeviceRoot::open(const std::string& hostFolder, Resolution resolution) {
    std::error_code error;
    std::filesystem::create_directories(hostFolder, error);
    FileDescriptor folder(::open(hostFolder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder)
        return std::unexpected(errno);
    return DeviceRoot(std::move(folder), hostFolder, resolution);
}

std::expected<FileDescriptor, int> DeviceRoot::open(std::string_view devicePath, int flags,
                                                    mode_t mode) const {
    open_how how{};
    how.flags = static_cast<__u64>(flags | O_CLOEXEC);
    how.mode = mode;
    how.resolve = RESOLVE_IN_ROOT;
    const std::string path(devicePath);
    FileDescriptor file(
        static_cast<int>(syscall(SYS_openat2, folder_.get(), path.c_str(), &how, sizeof how)));
    if (!file)
        return std::unexpected(errno);
    return file;
}

std::expected<DeviceRoot::Place, int> DeviceRoot::locate(std::string_view devicePath) const {
    while (devicePath.size() > 1 && devicePath.ends_with('/'))
        devicePath.remove_suffix(1);
    const auto slash = devicePath.rfind('/');
    auto name = devicePath.substr(slash == std::string_view::npos ? 0 : slash + 1);
    auto parent = devicePath.substr(0, slash == std::string_view::npos ? 0 : slash);
    if (name.empty() || name == "." || name == "..") {
        parent = devicePath;
        name = ".";
    }
    auto folder = open(parent.empty() ? "/" : parent, O_PATH | O_DIRECTORY);
    if (!folder)
        return std::unexpected(folder.error());
    return Place{.folder = std::move(*folder), .name = std::string(name)};
}
