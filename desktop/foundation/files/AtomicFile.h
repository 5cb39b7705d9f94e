#pragma once

#include "files/RegularFile.h"

#include <expected>
#include <string>
#include <string_view>

/// Replaces a file in one step: readers see the old content or the new, whole, also after the power failed.
/// The content is written to a temporary beside the target, which is gone again when anything fails.
class AtomicFile {
public:
    /// A temporary's name is this, or another prefix, and what makes it unique.
    static constexpr std::string_view usualPrefix = ".atomic-";

    /// The target keeps the mode that a file there had; a new one gets 0600. A link there is replaced itself.
    /// \param folder the target's, opened in any way
    /// \returns or the host's error number; the target may be the new file already when only making its name
    /// lasting failed
    static std::expected<void, int> replace(const FileDescriptor& folder, const std::string& name,
                                            std::string_view bytes,
                                            std::string_view temporaryPrefix = usualPrefix);

    /// Makes a file with what is left to be read of another one, and with that one's mode. `EEXIST` when
    /// something is there already.
    static std::expected<void, int> makeCopy(const FileDescriptor& folder, const std::string& name,
                                             RegularFile& original);

    AtomicFile(AtomicFile&& other) noexcept;
    ~AtomicFile();

private:
    AtomicFile(int folder, std::string temporaryName, RegularFile file);

    [[nodiscard]] static std::expected<AtomicFile, int> create(int folder, std::string_view temporaryPrefix);

    // These leave the reason of a failure in errno.
    [[nodiscard]] bool takeModeOf(const std::string& name);
    [[nodiscard]] bool takePlaceOf(const std::string& name);
    [[nodiscard]] bool takeFreePlace(const std::string& name);
    [[nodiscard]] bool takePlace(const std::string& name, unsigned flags);

    int folder_;
    std::string temporaryName_; ///< empty once there is none to remove
    RegularFile file_;
};
