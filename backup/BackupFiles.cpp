#include "BackupFiles.h"

#include "Foundation/NSDictionary.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSLog.h"
#include "Foundation/NSString.h"
#include "Foundation/NSUUID.h"
#include "RootPrefixResolver.h"

#include <algorithm>
#include <iterator>

namespace {

std::string lowercase(std::string text) {
    std::ranges::transform(text, text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return text;
}

/// Whether the first of two neighbours is to come after the second.
bool isOlder(const BackupFile& first, const BackupFile& second) {
    return first.creationDate && second.creationDate && *first.creationDate < *second.creationDate;
}

} // namespace

std::string newStagingPath() {
    return stringByAppendingPathComponent(NSTemporaryDirectory(), NSUUIDString());
}

std::optional<std::string> imageFolder() {
    return RootPrefixResolver::jailbreakRootPath(std::string(imageFolderPath));
}

std::optional<std::string> imageFile(std::string_view name) {
    return RootPrefixResolver::jailbreakRootPath(stringByAppendingPathComponent(imageFolderPath, name));
}

std::string backupTitle(std::string_view fileName) {
    return stringByDeletingPathExtension(lastPathComponent(fileName));
}

bool isBackupName(std::string_view fileName) {
    return lowercase(pathExtension(fileName)) == "gz" &&
           lowercase(pathExtension(stringByDeletingPathExtension(fileName))) == "tar";
}

bool isImportable(std::string_view extension) {
    const auto compared = lowercase(std::string(extension));
    return compared == "gz" || compared == "tar.gz"; // no extension is the second one: that is meant
}

bool holdsEssentialSettings(std::string_view folder) {
    const auto path = stringByAppendingPathComponent(folder, backupPreferencesName);
    if (!NSFileManager::defaultManager().fileExistsAtPath(path)) {
        NSLog("preferences.plist not found");
        return false;
    }
    const auto values = dictionaryWithContentsOfFile(path);
    if (!values) {
        NSLog("preferences.plist could not be read or is empty");
        return false;
    }
    if (std::ranges::any_of(EssentialKeys, [&](std::string_view key) { return values->contains(key); }))
        return true;
    NSLog("preferences.plist missing essential keys");
    return false;
}

std::optional<std::string> descriptionOf(const Ref<NSError>& error) {
    return error ? std::optional(error->localizedDescription()) : std::nullopt;
}

void sortNewestFirst(std::vector<BackupFile>& backups) {
    // By neighbours alone, since being equal to one without a date does not go over from one to the next.
    for (auto next = backups.begin(); next != backups.end(); ++next) {
        auto place = next;
        while (place != backups.begin() && isOlder(*std::prev(place), *next))
            --place;
        std::rotate(place, next, std::next(next));
    }
}
