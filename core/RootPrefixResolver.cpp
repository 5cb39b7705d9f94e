#include "RootPrefixResolver.h"

#include "Foundation/NSString.h"
#include "System/DynamicLibrary.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <utility>

namespace {

constexpr auto librootPath = "@rpath/libroot.dylib";
constexpr std::size_t pathBufferSize = 1024; ///< with the terminator; what libroot's callers hand it

using PrefixFunction = const char*();
using PathFunction = char*(const char* path, char* buffer);

/// Copies the parts one after the other, as much of them as the buffer holds, and terminates the result.
template <class... Parts>
char* join(char* buffer, Parts... parts) {
    std::size_t length = 0;
    const auto append = [&](std::string_view part) {
        const auto fitting = std::min(part.size(), pathBufferSize - 1 - length);
        part.copy(buffer + length, fitting);
        length += fitting;
    };
    (append(parts), ...);
    buffer[length] = '\0';
    return buffer;
}

char* bufferOrBlock(char* buffer) {
    // NOLINTNEXTLINE(*-no-malloc): the caller frees it, as libroot's callers do
    return buffer != nullptr ? buffer : static_cast<char*>(std::malloc(pathBufferSize));
}

const char* fallbackRootPrefix() {
    return "";
}

const char* fallbackJailbreakRootPrefix() {
    return "/var/jb";
}

const char* fallbackBootUUID() {
    return "00000000-0000-0000-0000-000000000000";
}

char* fallbackJailbreakRootPath(const char* path, char* buffer) {
    buffer = path != nullptr ? bufferOrBlock(buffer) : nullptr;
    if (buffer == nullptr)
        return nullptr;
    const std::string_view text(path);
    if (text.starts_with('/'))
        return join(buffer, RootPrefixResolver::libroot_get_jbroot_prefix(), text);
    return join(buffer, text);
}

char* fallbackRootFileSystemPath(const char* path, char* buffer) {
    buffer = path != nullptr ? bufferOrBlock(buffer) : nullptr;
    if (buffer == nullptr)
        return nullptr;
    const std::string_view text(path);
    const std::string_view jailbreakPrefix = RootPrefixResolver::libroot_get_jbroot_prefix();
    if (!text.starts_with('/'))
        return join(buffer, text);
    // Meant: bytes are compared, not components, so "/var/jbx" counts as under "/var/jb" and becomes "x".
    if (text.starts_with(jailbreakPrefix))
        return join(buffer, text.substr(jailbreakPrefix.size()));
    return join(buffer, RootPrefixResolver::libroot_get_root_prefix(), text);
}

/// The library, which stays open, and the function in each slot.
class Slots {
public:
    static const Slots& filled() {
        static const Slots slots; // filled by the first thread to come here; the others wait
        return slots;
    }

    PrefixFunction* rootPrefix = fallbackRootPrefix;
    PrefixFunction* jailbreakRootPrefix = fallbackJailbreakRootPrefix;
    PrefixFunction* bootUUID = fallbackBootUUID;
    PathFunction* jailbreakRootPath = fallbackJailbreakRootPath;
    PathFunction* rootFileSystemPath = fallbackRootFileSystemPath;

private:
    Slots() : library_(DynamicLibrary::open(librootPath, DynamicLibrary::Binding::Immediate)) {
        if (library_)
            fillFrom(*library_);
    }

    void fillFrom(const DynamicLibrary& library) {
        const auto fill = [&]<class Function>(Function*& slot, const char* symbol) {
            if (auto* const found = library.function<Function>(symbol))
                slot = found;
        };
        fill(rootPrefix, "libroot_get_root_prefix");
        fill(jailbreakRootPrefix, "libroot_get_jbroot_prefix");
        fill(bootUUID, "libroot_get_boot_uuid");
        fill(jailbreakRootPath, "libroot_jbrootpath");
        fill(rootFileSystemPath, "libroot_rootfspath");
    }

    std::optional<DynamicLibrary> library_;
};

} // namespace

const char* RootPrefixResolver::libroot_get_root_prefix() {
    return Slots::filled().rootPrefix();
}

const char* RootPrefixResolver::libroot_get_jbroot_prefix() {
    return Slots::filled().jailbreakRootPrefix();
}

const char* RootPrefixResolver::libroot_get_boot_uuid() {
    return Slots::filled().bootUUID();
}

char* RootPrefixResolver::libroot_jbrootpath(const char* path, char* buffer) {
    return Slots::filled().jailbreakRootPath(path, buffer);
}

char* RootPrefixResolver::libroot_rootfspath(const char* path, char* buffer) {
    return Slots::filled().rootFileSystemPath(path, buffer);
}

std::optional<std::string> RootPrefixResolver::jailbreakRootPath(const std::string& path) {
    std::array<char, pathBufferSize> buffer{};
    return stringWithUTF8String(libroot_jbrootpath(path.c_str(), buffer.data()));
}
