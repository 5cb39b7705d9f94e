#include "files/RegularFile.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

namespace {

/// So that a pipe without a partner, or a terminal, cannot hold the program up before it is refused.
constexpr int neverWait = O_NONBLOCK | O_NOCTTY;

/// Calls `transfer` with what is left of `bytes` until nothing is left, or it answers 0 or an error.
template <class Byte, class Transfer>
std::expected<std::size_t, int> transferAll(std::span<Byte> bytes, Transfer transfer) {
    auto left = bytes;
    while (!left.empty()) {
        const auto count = transfer(left);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::unexpected(errno);
        if (count == 0)
            break;
        left = left.subspan(static_cast<std::size_t>(count));
    }
    return bytes.size() - left.size();
}

} // namespace

RegularFile::RegularFile(FileDescriptor file, const struct stat& status)
    : file_(std::move(file)),
      status_(status) {}

std::expected<RegularFile, int> RegularFile::open(const DeviceRoot& root, std::string_view devicePath,
                                                  int flags, mode_t mode) {
    auto file = root.open(devicePath, flags | neverWait, mode);
    if (!file)
        return std::unexpected(file.error());
    return check(std::move(*file));
}

std::expected<RegularFile, int> RegularFile::openIn(int folder, const std::string& name, int flags,
                                                    mode_t mode) {
    FileDescriptor file(openat(folder, name.c_str(), flags | neverWait | O_NOFOLLOW | O_CLOEXEC, mode));
    if (!file)
        return std::unexpected(errno);
    return check(std::move(file));
}

std::expected<RegularFile, int> RegularFile::openOnHost(const std::string& hostPath) {
    FileDescriptor file(::open(hostPath.c_str(), O_RDONLY | neverWait | O_CLOEXEC));
    if (!file)
        return std::unexpected(errno);
    return check(std::move(file));
}

std::expected<RegularFile, int> RegularFile::check(FileDescriptor file) {
    struct stat status{};
    if (fstat(file.get(), &status) != 0)
        return std::unexpected(errno);
    if (S_ISDIR(status.st_mode))
        return std::unexpected(EISDIR);
    if (!S_ISREG(status.st_mode))
        return std::unexpected(ENOTSUP);
    return RegularFile(std::move(file), status);
}

std::string RegularFile::openPath() const {
    return "/proc/self/fd/" + std::to_string(get());
}

std::expected<std::size_t, int> RegularFile::read(std::span<std::byte> buffer) {
    return transferAll(buffer, [this](auto left) { return ::read(file_.get(), left.data(), left.size()); });
}

std::expected<NSData, int> RegularFile::readAll(std::size_t maximumSize) {
    // The file may grow while it is read, and some tell no size at all.
    constexpr std::size_t leastRoom = 4096;
    const auto told = static_cast<std::size_t>(status_.st_size);
    NSData data;
    while (data.bytes.size() <= maximumSize) {
        const auto size = data.bytes.size();
        const auto room = std::max(leastRoom, told > size ? told - size + 1 : 0); // 1 to see the end with
        data.bytes.resize(size + room);
        const auto count = read(std::span(data.bytes).subspan(size));
        if (!count)
            return std::unexpected(count.error());
        data.bytes.resize(size + *count);
        if (*count < room && data.bytes.size() <= maximumSize)
            return data;
    }
    return std::unexpected(EFBIG);
}

std::expected<void, int> RegularFile::write(std::span<const std::byte> bytes) {
    const auto written =
        transferAll(bytes, [this](auto left) { return ::write(file_.get(), left.data(), left.size()); });
    if (!written)
        return std::unexpected(written.error());
    if (*written != bytes.size())
        return std::unexpected(EIO);
    return {};
}

std::expected<void, int> RegularFile::copyTo(RegularFile& other) {
    constexpr std::size_t chunkSize = std::size_t{128} * 1024;
    std::vector<std::byte> chunk(chunkSize);
    while (true) {
        const auto count = read(chunk);
        if (!count)
            return std::unexpected(count.error());
        if (*count == 0)
            return {};
        if (auto written = other.write(std::span(chunk).first(*count)); !written)
            return written;
    }
}
