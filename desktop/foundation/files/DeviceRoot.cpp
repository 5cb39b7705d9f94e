#include "files/DeviceRoot.h"

#include "files/HandResolver.h"

#include <sys/syscall.h>

#include <fcntl.h>
#include <linux/openat2.h>

#include <cerrno>
#include <climits>
#include <filesystem>
#include <system_error>
#include <utility>

namespace {

constexpr int attemptsWhileTheTreeChanges = 64;

std::expected<FileDescriptor, int> openInRoot(const FileDescriptor& root, const char* path, int flags,
                                              mode_t mode) {
    const bool makesFiles = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    open_how how{};
    how.flags = static_cast<__u64>(flags | O_CLOEXEC);
    how.mode = makesFiles ? mode : 0;
    how.resolve = RESOLVE_IN_ROOT;
    FileDescriptor file(static_cast<int>(syscall(SYS_openat2, root.get(), path, &how, sizeof how)));
    if (!file)
        return std::unexpected(errno);
    return file;
}

std::expected<FileDescriptor, int> openHostFolder(const std::string& hostFolder) {
    std::error_code error;
    std::filesystem::create_directories(hostFolder, error);
    FileDescriptor folder(::open(hostFolder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder)
        return std::unexpected(errno);
    return folder;
}

/// Whether no path can be what it is meant to be; 0, or the error number.
int errorOfPath(std::string_view path) {
    if (path.empty())
        return ENOENT;
    if (path.contains('\0'))
        return EINVAL;
    return path.size() < PATH_MAX ? 0 : ENAMETOOLONG;
}

} // namespace

DeviceRoot::DeviceRoot(FileDescriptor folder, std::string hostFolder, Resolution resolution)
    : folder_(std::move(folder)),
      hostFolder_(std::move(hostFolder)),
      resolution_(resolution) {}

std::expected<DeviceRoot, int> DeviceRoot::open(const std::string& hostFolder) {
    auto root = open(hostFolder, Resolution::Kernel);
    // An old kernel lacks the call, and a sandbox may refuse it, with whatever error.
    if (root && !openInRoot(root->folder_, ".", O_PATH, 0))
        root->resolution_ = Resolution::ByHand;
    return root;
}

std::expected<DeviceRoot, int> DeviceRoot::open(const std::string& hostFolder, Resolution resolution) {
    auto folder = openHostFolder(hostFolder);
    if (!folder)
        return std::unexpected(folder.error());
    return DeviceRoot(std::move(*folder), hostFolder, resolution);
}

std::expected<FileDescriptor, int> DeviceRoot::open(std::string_view devicePath, int flags,
                                                    mode_t mode) const {
    if (const int error = errorOfPath(devicePath); error != 0)
        return std::unexpected(error);
    const std::string path(devicePath);
    if (resolution_ == Resolution::Kernel)
        return openByKernel(path, flags, mode);
    return HandResolver(folder_.get(), path).open(flags, mode);
}

std::expected<FileDescriptor, int> DeviceRoot::openByKernel(const std::string& path, int flags,
                                                            mode_t mode) const {
    for (int attempt = 0; attempt < attemptsWhileTheTreeChanges; ++attempt) {
        auto file = openInRoot(folder_, path.c_str(), flags, mode);
        if (file || file.error() != EAGAIN)
            return file;
    }
    // Folders are moved all the time somewhere on the host, and the kernel cannot vouch for a "..".
    return HandResolver(folder_.get(), path).open(flags, mode);
}

std::expected<DeviceRoot::Place, int> DeviceRoot::locate(std::string_view devicePath) const {
    if (const int error = errorOfPath(devicePath); error != 0)
        return std::unexpected(error);
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
    return Place{std::move(*folder), std::string(name)};
}
