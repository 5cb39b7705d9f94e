#include "cxBackupRestoreController.h"

#include "Foundation/NSFileManager.h"
#include "Foundation/NSNotificationCenter.h"
#include "Foundation/NSString.h"
#include "ObjectiveC/Class.h"

namespace {

using Text = std::optional<std::string>;

constexpr auto listName = "BackupRestore";
constexpr auto folderName = "CorvexBackups";

constexpr void (cxBackupRestoreController::*showMessage)(const Text&, const Text&) =
    &cxBackupRestoreController::showMessage;
constexpr void (cxBackupRestoreController::*showMessageWithCompletion)(
    const Text&, const Text&, const std::function<void()>&) = &cxBackupRestoreController::showMessage;

const Class classObject = Class::define<cxBackupRestoreController, PSListController>(
    "cxBackupRestoreController",
    {method<"backupsPath", &cxBackupRestoreController::backupsPath>(),
     method<"setBackupsPath:", &cxBackupRestoreController::setBackupsPath>(),
     method<"dateFormatter", &cxBackupRestoreController::dateFormatter>(),
     method<"setDateFormatter:", &cxBackupRestoreController::setDateFormatter>(),
     method<"currentBackupsList", &cxBackupRestoreController::currentBackupsList>(),
     method<"setCurrentBackupsList:", &cxBackupRestoreController::setCurrentBackupsList>(),
     method<"showMessage:withTitle:completion:", showMessageWithCompletion>(),
     method<"showMessage:withTitle:", showMessage>(),
     method<"dismissMessageController:", &cxBackupRestoreController::dismissMessageController>(),
     method<"createWelcomeControllerWithTitle:detailText:symbolName:backdropStyle:",
            &cxBackupRestoreController::createWelcomeControllerWithTitle>(),
     method<"dismissWelcomeController:", &cxBackupRestoreController::dismissWelcomeController>(),
     method<"findBulletedListItemsInView:", &cxBackupRestoreController::findBulletedListItemsInView>(),
     method<"handleBulletedListTap:", &cxBackupRestoreController::handleBulletedListTap>(),
     method<"createBackup", &cxBackupRestoreController::createBackup>(),
     method<"showBackupNamePrompt:", &cxBackupRestoreController::showBackupNamePrompt>(),
     method<"handleBackupNameSave:", &cxBackupRestoreController::handleBackupNameSave>(),
     method<"saveBackupWithName:", &cxBackupRestoreController::saveBackupWithName>(),
     method<"restoreBackup:", &cxBackupRestoreController::restoreBackup>(),
     method<"handleRestoreConfirm:", &cxBackupRestoreController::handleRestoreConfirm>(),
     method<"performRestoreFromFolder:", &cxBackupRestoreController::performRestoreFromFolder>(),
     method<"showBackupList", &cxBackupRestoreController::showBackupList>(),
     method<"handleBackupListItemTap:", &cxBackupRestoreController::handleBackupListItemTap>(),
     method<"showOptionsForBackup:", &cxBackupRestoreController::showOptionsForBackup>(),
     method<"openInFilza:", &cxBackupRestoreController::openInFilza>(),
     method<"shareBackup:", &cxBackupRestoreController::shareBackup>(),
     method<"deleteBackup:", &cxBackupRestoreController::deleteBackup>(),
     method<"importBackup", &cxBackupRestoreController::importBackup>(),
     method<"documentPicker:didPickDocumentsAtURLs:", &cxBackupRestoreController::didPickDocumentsAtURLs>(),
     method<"validateBackupContents:", &cxBackupRestoreController::validateBackupContents>()});

/// Nothing when the user has no documents.
Text backupsFolder() {
    const auto documents = NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory::DocumentDirectory);
    return documents.empty() ? Text() : stringByAppendingPathComponent(documents.front(), folderName);
}

} // namespace

bool cxBackupRestoreController::init() {
    if (!PSListController::init())
        return false;
    backupsPath_ = backupsFolder();
    if (backupsPath_)
        static_cast<void>(NSFileManager::defaultManager().createDirectoryAtPath(*backupsPath_, true));
    dateFormatter_ = NSDateFormatter::dateFormatter();
    dateFormatter_->setDateStyle(NSDateFormatterStyle::Short);
    dateFormatter_->setTimeStyle(NSDateFormatterStyle::Short);
    return true;
}

cxBackupRestoreController::~cxBackupRestoreController() {
    NSNotificationCenter::defaultCenter().removeObserver(*this);
}

PSListController::Specifiers cxBackupRestoreController::specifiers() {
    if (cachedSpecifiers().empty())
        setCachedSpecifiers(loadSpecifiersFromPlistName(listName, *this));
    return cachedSpecifiers();
}

std::string cxBackupRestoreController::pathOfBackup(std::string_view fileName) const {
    return backupsPath_ && !fileName.empty() ? stringByAppendingPathComponent(*backupsPath_, fileName)
                                             : std::string();
}
