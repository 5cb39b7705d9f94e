#include "sharing/SharedFile.h"

#include "Device.h"
#include "Foundation/NSString.h"
#include "SystemTexts.h"
#include "files/AtomicFile.h"
#include "files/RegularFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>

namespace {

std::expected<RegularFile, int> opened(const std::string& path) {
    return RegularFile::open(Device::current().root(), path, O_RDONLY);
}

/// Where the host has a file that is open.
std::expected<std::string, int> hostPathOf(const RegularFile& file) {
    std::array<char, PATH_MAX> path{};
    const auto length = readlink(file.openPath().c_str(), path.data(), path.size());
    if (length < 0)
        return std::unexpected(errno);
    return std::string(path.data(), static_cast<std::size_t>(length));
}

} // namespace

std::string SharedFile::name() const {
    return lastPathComponent(path_);
}

std::string SharedFile::problem(int error) const {
    return "“" + name() + "”: " + systemTextOfError(error) + ".";
}

std::optional<std::uint64_t> SharedFile::size() const {
    const auto file = opened(path_);
    return file ? std::optional(static_cast<std::uint64_t>(file->status().st_size)) : std::nullopt;
}

std::expected<std::string, std::string> SharedFile::hostUrl() const {
    const auto file = opened(path_);
    const auto path = file ? hostPathOf(*file) : std::unexpected(file.error());
    if (!path)
        return std::unexpected(problem(path.error()));
    return "file://" + stringByAddingPercentEncodingWithURLPathAllowedCharacters(*path);
}

std::expected<void, std::string> SharedFile::copyTo(const std::string& hostFolder) const {
    auto file = opened(path_);
    if (!file)
        return std::unexpected(problem(file.error()));
    const FileDescriptor folder(open(hostFolder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    const auto copied = folder ? AtomicFile::makeCopy(folder, name(), *file) : std::unexpected(errno);
    if (!copied)
        return std::unexpected(problem(copied.error()));
    return {};
}
