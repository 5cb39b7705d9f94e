#pragma once

#include <optional>
#include <string>

/// Turns absolute paths into their place under the jailbreak's root. Five functions, each libroot's when that
/// library is there and exports it, and otherwise a fallback for the rootless layout. They are looked up once
/// in the process, by whichever of them is called first. Any thread.
class RootPrefixResolver {
public:
    RootPrefixResolver() = delete;

    /// The prefix of the system's own files. Fallback: "".
    [[nodiscard]] static const char* libroot_get_root_prefix();

    /// The prefix of the jailbreak's files. Fallback: "/var/jb".
    [[nodiscard]] static const char* libroot_get_jbroot_prefix();

    /// An identifier of the present boot. Fallback: all zeros.
    [[nodiscard]] static const char* libroot_get_boot_uuid();

    /// The place of a path under the jailbreak's root. The fallback puts the jailbreak's prefix before an
    /// absolute path and leaves a relative one as it is.
    ///
    /// \param path a null path gives null
    /// \param buffer 1024 bytes for the result, or null: then the result is a block of as many from `malloc`
    ///     that the caller frees. A result of more than 1023 bytes is cut off there.
    [[nodiscard]] static char* libroot_jbrootpath(const char* path, char* buffer);

    /// The reverse, with the same arguments and ownership. The fallback takes the jailbreak's prefix off an
    /// absolute path that begins with it, and puts the root prefix before any other absolute path.
    [[nodiscard]] static char* libroot_rootfspath(const char* path, char* buffer);

    /// `libroot_jbrootpath` as text; nothing when that gives null or no valid UTF-8.
    [[nodiscard]] static std::optional<std::string> jailbreakRootPath(const std::string& path);
};
