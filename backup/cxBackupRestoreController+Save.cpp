#include "Foundation/Format.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSString.h"
#include "LibArchive.h"
#include "PreferenceStore.h"
#include "cxBackupRestoreController.h"

namespace {

constexpr auto namePattern = "yyyyMMdd-HHmm";

std::string nameOfNow() {
    const auto formatter = NSDateFormatter::dateFormatter();
    formatter->setDateFormat(namePattern);
    return stringWithFormat("Backup_%@", formatter->stringFromDate(NSDate::date()));
}

void copyImages(const std::string& folder) {
    auto& files = NSFileManager::defaultManager();
    for (const auto name : ImageFileSet) {
        const auto image = imageFile(name);
        if (image && files.fileExistsAtPath(*image))
            static_cast<void>(files.copyItemAtPath(*image, stringByAppendingPathComponent(folder, name)));
    }
}

/// What cannot be written or copied is missing in the folder.
void fillStagingFolder(const std::string& folder) {
    const auto values = PreferenceStore::catalogueValues(*PreferenceStore::open());
    writeToFileAtomically(values, stringByAppendingPathComponent(folder, backupPreferencesName));
    copyImages(folder);
}

} // namespace

void cxBackupRestoreController::saveBackupWithName(const std::optional<std::string>& name) {
    const auto backupName = name && !name->empty() ? *name : nameOfNow();
    const auto folder = newStagingPath();
    auto& files = NSFileManager::defaultManager();
    if (!files.createDirectoryAtPath(folder, true)) {
        showMessage("Failed to create temporary directory", "Error");
        return;
    }
    fillStagingFolder(folder);
    const auto packed =
        LibArchive::createArchiveAtPath(pathOfBackup(stringWithFormat("%@.tar.gz", backupName)), folder);
    if (packed)
        showMessage("Backup created successfully", "Success");
    else
        showMessage(descriptionOf(packed.error()), "Error");
    static_cast<void>(files.removeItemAtPath(folder));
}
