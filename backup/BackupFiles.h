#pragma once

#include "Foundation/NSDate.h"
#include "Foundation/NSError.h"
#include "PreferenceKeys.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The names and places of backups, and of what they hold.

/// The settings among a backup's files.
inline constexpr std::string_view backupPreferencesName = "preferences.plist";

/// A folder in the temporary directory that does not exist yet, with a name of its own.
[[nodiscard]] std::string newStagingPath();

/// Where the images are, and one of them; nothing when no place is known for it.
[[nodiscard]] std::optional<std::string> imageFolder();
[[nodiscard]] std::optional<std::string> imageFile(std::string_view name);

/// What a backup is called where it is shown. Only the last extension is taken off, and ".tar" stays: that is
/// meant.
[[nodiscard]] std::string backupTitle(std::string_view fileName);

/// What an error says to the user; nothing for none.
[[nodiscard]] std::optional<std::string> descriptionOf(const Ref<NSError>& error);

/// Whether a file is named as a backup is: ".tar.gz", in capitals or not.
[[nodiscard]] bool isBackupName(std::string_view fileName);

/// Whether a file may be taken in. It is enough that its name ends in ".gz", in capitals or not: that is
/// meant.
[[nodiscard]] bool isImportable(std::string_view extension);

/// Whether the settings in a folder have a value for at least one of the essential keys. Why not is logged.
[[nodiscard]] bool holdsEssentialSettings(std::string_view folder);

/// A backup in its folder.
struct BackupFile {
    std::string name;
    std::optional<NSDate> creationDate; ///< nothing when it cannot be read
};

/// The newest first. One without a date counts as equal to its neighbours, and does not let others pass.
void sortNewestFirst(std::vector<BackupFile>& backups);
