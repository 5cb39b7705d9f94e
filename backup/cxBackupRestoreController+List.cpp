#include "Foundation/NSFileManager.h"
#include "Foundation/NSLog.h"
#include "ObjectiveC/AttachedValues.h"
#include "cxBackupRestoreController.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr auto fileSymbol = "doc.fill";
constexpr auto nameKey = "BackupName";

using Action = void (cxBackupRestoreController::*)(const std::optional<std::string>& fileName);

/// One thing that can be done with a backup.
struct Option {
    const char* title;
    const char* description;
    const char* symbol;
    Ref<UIColor> (*tint)();
    Action action;
};

constexpr std::array<Option, 4> options{{
    {.title = "Restore",
     .description = "Replace current settings with this backup",
     .symbol = "arrow.clockwise",
     .tint = &UIColor::systemBlueColor,
     .action = &cxBackupRestoreController::restoreBackup},
    {.title = "Share",
     .description = "Share backup file with others",
     .symbol = "square.and.arrow.up",
     .tint = &UIColor::systemGreenColor,
     .action = &cxBackupRestoreController::shareBackup},
    {.title = "Open in Filza",
     .description = "View backup contents in Filza",
     .symbol = "folder",
     .tint = &UIColor::systemOrangeColor,
     .action = &cxBackupRestoreController::openInFilza},
    {.title = "Delete",
     .description = "Remove this backup",
     .symbol = "trash",
     .tint = &UIColor::systemRedColor,
     .action = &cxBackupRestoreController::deleteBackup},
}};

std::optional<NSDate> creationDateOf(const std::string& path) {
    const auto attributes = NSFileManager::defaultManager().attributesOfItemAtPath(path);
    return attributes ? std::optional(attributes->fileCreationDate) : std::nullopt;
}

} // namespace

/// None when the folder cannot be read.
std::vector<BackupFile> cxBackupRestoreController::backups() const {
    std::vector<BackupFile> found;
    const auto names = NSFileManager::defaultManager().contentsOfDirectoryAtPath(backupsPath_.value_or(""));
    if (!names)
        return found;
    for (const auto& name : *names) {
        if (isBackupName(name))
            found.push_back({.name = name, .creationDate = creationDateOf(pathOfBackup(name))});
    }
    sortNewestFirst(found);
    return found;
}

void cxBackupRestoreController::showBackupList() {
    const auto sheet = makeSheet("Available Backups", "Select a backup to manage", "folder.fill");
    const auto found = backups();
    if (found.empty()) {
        showMessage("No backups found", "Info");
        return;
    }
    if (!sheet)
        return;
    addBackupsToSheet(*sheet, found);
    installNavigationBar(sheet->view(), nullptr,
                         makeBarButton("Done", UIBarButtonItemStyle::Done, "dismissWelcomeController:"));
    presentSheet(sheet);
    const auto items = findBulletedListItemsInView(sheet->bulletedList());
    for (std::size_t index = 0; index < std::min(found.size(), items.size()); ++index) {
        makeTappable(*items[index], static_cast<int>(index), "handleBackupListItemTap:");
        setAttachedValue(*items[index], nameKey, found[index].name, Retention::Retain);
    }
}

void cxBackupRestoreController::addBackupsToSheet(OBWelcomeController& sheet,
                                                  const std::vector<BackupFile>& backups) {
    currentBackupsList_.emplace();
    for (const auto& [name, date] : backups) {
        currentBackupsList_->push_back(name);
        const auto shownDate = date && dateFormatter_ ? dateFormatter_->stringFromDate(*date) : std::string();
        sheet.addBulletedListItemWithTitle(backupTitle(name), shownDate,
                                           UIImage::systemImageNamed(fileSymbol), UIColor::systemBlueColor());
    }
}

void cxBackupRestoreController::handleBackupListItemTap(const Ref<UITapGestureRecognizer>& recognizer) {
    const auto item = recognizer ? recognizer->view() : nullptr;
    const auto name = item ? attachedValueOf<std::string>(*item, nameKey) : std::nullopt;
    if (name)
        dismissViewControllerAnimated(true,
                                      [page = retain(this), name] { page->showOptionsForBackup(name); });
}

void cxBackupRestoreController::showOptionsForBackup(const std::optional<std::string>& fileName) {
    const auto sheet =
        makeSheet(backupTitle(fileName.value_or("")), "Choose an action for this backup", fileSymbol);
    if (!sheet)
        return;
    for (const auto& option : options)
        sheet->addBulletedListItemWithTitle(option.title, option.description,
                                            UIImage::systemImageNamed(option.symbol), option.tint());
    installNavigationBar(sheet->view(),
                         makeBarButton("Back", UIBarButtonItemStyle::Plain, "dismissWelcomeController:"),
                         nullptr);
    presentSheet(sheet);
    const auto items = findBulletedListItemsInView(sheet->bulletedList());
    for (std::size_t index = 0; index < std::min(options.size(), items.size()); ++index) {
        makeTappable(*items[index], static_cast<int>(index), "handleBulletedListTap:");
        setAttachedValue(
            *items[index], backupActionKey,
            [page = retain(this), action = options.at(index).action, fileName] {
                (page.get()->*action)(fileName);
            },
            Retention::Retain);
    }
}

void cxBackupRestoreController::deleteBackup(const std::optional<std::string>& fileName) {
    NSLog("Deleting backup: %@", fileName);
    auto& files = NSFileManager::defaultManager();
    if (const auto removed = files.removeItemAtPath(pathOfBackup(fileName.value_or(""))); !removed) {
        showMessage(removed.error()->localizedDescription(), "Error");
        return;
    }
    // Whatever else is in the folder counts: then the list comes back and may find no backup. That is meant.
    const auto others = files.contentsOfDirectoryAtPath(backupsPath_.value_or(""));
    const auto showOthers = [page = retain(this)] { page->showBackupList(); };
    showMessage("Backup deleted successfully", "Success",
                others && !others->empty() ? std::function<void()>(showOthers) : std::function<void()>());
}
