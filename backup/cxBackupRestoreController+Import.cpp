#include "Foundation/NSFileManager.h"
#include "LibArchive.h"
#include "cxBackupRestoreController.h"

namespace {

const std::vector<std::string>& backupImportTypes() {
    static const std::vector<std::string> types{"public.data",         "public.archive",
                                                "org.gnu.gnu-zip-tar", "public.tar-archive",
                                                "org.gnu.gnu-zip",     "public.composite-content"};
    return types;
}

bool unpackForChecking(const NSURL& url, const std::string& folder) {
    static_cast<void>(NSFileManager::defaultManager().createDirectoryAtPath(folder, true));
    return LibArchive::extractArchiveAtPath(url.path(), folder).has_value();
}

} // namespace

void cxBackupRestoreController::importBackup() {
    const auto picker = UIDocumentPickerViewController::initWithDocumentTypes(backupImportTypes(),
                                                                              UIDocumentPickerMode::Import);
    if (!picker)
        return;
    picker->setDelegate(*this);
    picker->setModalPresentationStyle(UIModalPresentationStyle::FormSheet);
    picker->setAllowsMultipleSelection(false);
    const auto documents =
        NSFileManager::defaultManager().URLsForDirectory(NSSearchPathDirectory::DocumentDirectory);
    if (!documents.empty())
        picker->setDirectoryURL(documents.front());
    presentViewController(picker, true, {});
}

void cxBackupRestoreController::didPickDocumentsAtURLs(const Ref<UIDocumentPickerViewController>& /*picker*/,
                                                       const std::vector<Ref<NSURL>>& urls) {
    if (urls.empty())
        return;
    const auto& url = *urls.front();
    if (!isImportable(url.pathExtension())) {
        showMessage("Invalid file type. Please select a .tar.gz backup file.", "Error");
        return;
    }
    const bool hasAccess = url.startAccessingSecurityScopedResource();
    const auto folder = newStagingPath();
    if (importFromURL(url, folder) == CleanUp::Skipped)
        return;
    if (hasAccess)
        url.stopAccessingSecurityScopedResource();
    static_cast<void>(NSFileManager::defaultManager().removeItemAtPath(folder));
}

cxBackupRestoreController::CleanUp cxBackupRestoreController::importFromURL(const NSURL& url,
                                                                            const std::string& folder) {
    if (!unpackForChecking(url, folder)) {
        showMessage("Failed to validate backup file", "Error");
        return CleanUp::Wanted;
    }
    if (!validateBackupContents(folder)) {
        showMessage("Invalid backup file. Missing required files.", "Error");
        return CleanUp::Wanted;
    }
    auto& files = NSFileManager::defaultManager();
    const auto destination = pathOfBackup(url.lastPathComponent());
    if (files.fileExistsAtPath(destination)) {
        showMessage("A backup with this name already exists. Please rename the backup file before importing.",
                    "Error");
        return CleanUp::Skipped; // that is meant: access and folder stay
    }
    if (files.copyItemAtPath(url.path(), destination))
        showMessage("Backup imported successfully", "Success",
                    [page = retain(this)] { page->showBackupList(); });
    else
        showMessage("Failed to import backup file", "Error");
    return CleanUp::Wanted;
}

bool cxBackupRestoreController::validateBackupContents(const std::optional<std::string>& folder) {
    return holdsEssentialSettings(folder.value_or(""));
}
