#include "CoreFoundation/DarwinNotifyCenter.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSLog.h"
#include "Foundation/NSString.h"
#include "LibArchive.h"
#include "ObjectiveC/AttachedValues.h"
#include "PreferenceStore.h"
#include "cxBackupRestoreController.h"

namespace {

constexpr auto archivePathKey = "ArchivePath";
constexpr auto stagingFolderKey = "TempDir";

/// \returns whether there are settings to restore
bool restorePreferences(const std::string& folder) {
    const auto values =
        dictionaryWithContentsOfFile(stringByAppendingPathComponent(folder, backupPreferencesName));
    if (values)
        PreferenceStore::replaceAll(*PreferenceStore::open(), *values);
    return values.has_value();
}

/// An image that the backup lacks stays as it is. \returns false when one cannot be copied, which is logged
bool restoreImage(std::string_view name, const std::string& folder, const std::string& imageFolder) {
    auto& files = NSFileManager::defaultManager();
    const auto source = stringByAppendingPathComponent(folder, name);
    if (!files.fileExistsAtPath(source))
        return true;
    const auto destination = stringByAppendingPathComponent(imageFolder, name);
    if (files.fileExistsAtPath(destination))
        static_cast<void>(files.removeItemAtPath(destination));
    const auto copied = files.copyItemAtPath(source, destination);
    if (!copied)
        NSLog("Error restoring file %@: %@", name, copied.error());
    return copied.has_value();
}

/// \returns whether all that the backup holds are in their place
bool restoreImages(const std::string& folder) {
    const auto destination = imageFolder();
    if (!destination)
        return false;
    auto& files = NSFileManager::defaultManager();
    if (!files.fileExistsAtPath(*destination))
        static_cast<void>(files.createDirectoryAtPath(*destination, true));
    bool restored = true;
    for (const auto name : ImageFileSet)
        restored = restoreImage(name, folder, *destination) && restored;
    return restored;
}

} // namespace

void cxBackupRestoreController::restoreBackup(const std::optional<std::string>& fileName) {
    const auto folder = newStagingPath();
    static_cast<void>(NSFileManager::defaultManager().createDirectoryAtPath(folder, true));
    const auto sheet = makeSheet("Confirm Restore", "This will replace your current settings. Continue?",
                                 "exclamationmark.triangle.fill");
    if (!sheet)
        return;
    sheet->addBulletedListItemWithTitle("Warning", "All current settings will be replaced",
                                        UIImage::systemImageNamed("exclamationmark.triangle"),
                                        UIColor::systemRedColor());
    const auto button = makeBarButton("Restore", UIBarButtonItemStyle::Done, "handleRestoreConfirm:");
    button->setTintColor(UIColor::systemRedColor());
    setAttachedValue(*button, archivePathKey, pathOfBackup(fileName.value_or("")),
                     Retention::RetainNonatomic);
    setAttachedValue(*button, stagingFolderKey, folder, Retention::RetainNonatomic);
    installNavigationBar(sheet->view(),
                         makeBarButton("Cancel", UIBarButtonItemStyle::Plain, "dismissWelcomeController:"),
                         button);
    presentSheet(sheet);
}

void cxBackupRestoreController::handleRestoreConfirm(const Ref<UIBarButtonItem>& sender) {
    if (!sender)
        return;
    const auto archivePath = attachedValueOf<std::string>(*sender, archivePathKey).value_or("");
    const auto folder = attachedValueOf<std::string>(*sender, stagingFolderKey).value_or("");
    dismissViewControllerAnimated(
        true, [page = retain(this), archivePath, folder] { page->restoreFromArchive(archivePath, folder); });
}

void cxBackupRestoreController::restoreFromArchive(const std::string& archivePath,
                                                   const std::string& folder) {
    if (const auto unpacked = LibArchive::extractArchiveAtPath(archivePath, folder))
        performRestoreFromFolder(folder);
    else
        showMessage(descriptionOf(unpacked.error()), "Error");
    static_cast<void>(NSFileManager::defaultManager().removeItemAtPath(folder));
}

void cxBackupRestoreController::performRestoreFromFolder(const std::optional<std::string>& folder) {
    const auto source = folder.value_or("");
    const bool hasPreferences = restorePreferences(source);
    const bool hasImages = restoreImages(source);
    if (hasPreferences && hasImages)
        showMessage("Settings and images restored successfully. Changes will take effect after a respring.",
                    "Success");
    else
        showMessage("Some files failed to restore", "Warning");
    DarwinNotifyCenter::postNotification(reloadNotificationName);
}
