#pragma once

#include "files/DeviceRoot.h"
#include "files/FileDescriptor.h"

#include <sys/types.h>

#include <expected>
#include <string>
#include <string_view>

/// The folder of preferences, locked: while the object lives no other writer of preferences, of any domain
/// and in any process, changes it.
class PreferenceFolder {
public:
    /// A device path.
    static constexpr auto path = "/var/mobile/Library/Preferences";

    /// What the names of temporaries of preference files begin with.
    static constexpr std::string_view temporaryPrefix = ".preferences-";

    /// Waits for the lock. Temporaries that are there then are of writers that died, and are removed.
    [[nodiscard]] static std::expected<PreferenceFolder, int> lock(const DeviceRoot& root);

    /// Gives the file a second name, "NAME.damaged" or "NAME.damaged-2" and so on, so that it stays when it
    /// is replaced. Nothing is done when it has such a name already; no name that is taken is touched.
    /// \param inode the file's
    [[nodiscard]] std::expected<void, int> keepAside(const std::string& fileName, ino_t inode) const;

    /// Makes or replaces the file in one step.
    [[nodiscard]] std::expected<void, int> replace(const std::string& fileName, std::string_view bytes) const;

private:
    explicit PreferenceFolder(FileDescriptor folder) : folder_(std::move(folder)) {}

    void removeTemporaries() const;

    FileDescriptor folder_;
};
