#include "CreationNote.h"

#include "Device.h"

#include <sys/stat.h>
#include <sys/xattr.h>

#include <fcntl.h>

#include <bit>
#include <cstdint>
#include <string>

namespace {

constexpr auto attribute = "user.corvex.made";

bool isNothingAt(const DeviceRoot::Place& place) {
    struct stat status{};
    return fstatat(place.folder.get(), place.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0;
}

/// The way by the opened folder leads to that one only, whoever swaps links meanwhile.
std::string hostPathOf(const DeviceRoot::Place& place) {
    return "/proc/self/fd/" + std::to_string(place.folder.get()) + "/" + place.name;
}

} // namespace

CreationNote::CreationNote(std::string_view path)
    : place_(Device::current().root().locate(path)),
      isNew_(place_ && isNothingAt(*place_)) {}

void CreationNote::made() const {
    if (isNew_)
        write();
}

void CreationNote::replaced() const {
    if (place_)
        write();
}

void CreationNote::write() const {
    const auto date = Device::current().momentOfCreation();
    const auto bits = std::bit_cast<std::uint64_t>(date.timeIntervalSinceReferenceDate);
    lsetxattr(hostPathOf(*place_).c_str(), attribute, &bits, sizeof bits, 0);
}

std::optional<NSDate> CreationNote::of(const DeviceRoot::Place& place) {
    std::uint64_t bits = 0;
    if (lgetxattr(hostPathOf(place).c_str(), attribute, &bits, sizeof bits) != sizeof bits)
        return std::nullopt;
    return NSDate{std::bit_cast<double>(bits)};
}
