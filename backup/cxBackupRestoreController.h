#pragma once

#include "BackupFiles.h"
#include "Foundation/NSDateFormatter.h"
#include "Foundation/NSURL.h"
#include "OnBoardingKit/OBWelcomeController.h"
#include "Preferences/PSListController.h"
#include "UIKit/NSLayoutConstraint.h"
#include "UIKit/UIBarButtonItem.h"
#include "UIKit/UIDocumentPickerViewController.h"
#include "UIKit/UINavigationBar.h"
#include "UIKit/UITapGestureRecognizer.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The page of backups: makes them, lists, restores, shares and deletes those that there are, and takes in
/// others. A backup is a file in the backups folder, and called by its file name. All that it asks and tells
/// is on sheets, of which one is shown at a time, each once the one before has gone. Made by the Preferences
/// framework. Main thread only; what is done with files is done at once.
class cxBackupRestoreController final : public PSListController {
public:
    ~cxBackupRestoreController() override;

    // NSObject:
    /// Makes the backups folder, if that can be done.
    [[nodiscard]] bool init() override;

    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;

    /// The backups folder: "CorvexBackups" in the user's documents.
    [[nodiscard]] const std::optional<std::string>& backupsPath() const { return backupsPath_; }

    void setBackupsPath(const std::optional<std::string>& path) { backupsPath_ = path; }

    /// For the dates of backups that are shown: short ones.
    [[nodiscard]] const Ref<NSDateFormatter>& dateFormatter() const { return dateFormatter_; }

    void setDateFormatter(const Ref<NSDateFormatter>& formatter) { dateFormatter_ = formatter; }

    /// The file names in the list that was shown last, in its order; nothing before the first one.
    [[nodiscard]] const std::optional<std::vector<std::string>>& currentBackupsList() const {
        return currentBackupsList_;
    }

    void setCurrentBackupsList(const std::optional<std::vector<std::string>>& list) {
        currentBackupsList_ = list;
    }

    /// Shows a message with a button that closes it. \param completion called when it has gone; may be empty
    void showMessage(const std::optional<std::string>& message, const std::optional<std::string>& title,
                     const std::function<void()>& completion);
    void showMessage(const std::optional<std::string>& message, const std::optional<std::string>& title);
    /// Closes the message whose button `sender` is.
    void dismissMessageController(const Ref<UIBarButtonItem>& sender);

    /// A sheet that is yet to be presented; empty when there can be none.
    [[nodiscard]] Ref<OBWelcomeController> createWelcomeControllerWithTitle(
        const std::optional<std::string>& title, const std::optional<std::string>& detailText,
        const std::optional<std::string>& symbolName, std::int64_t backdropStyle);
    /// Closes the sheet that is shown, if one is.
    void dismissWelcomeController(const Ref<NSObject>& sender);

    /// The items of a sheet's list in a view, at any depth, an item before those within it.
    [[nodiscard]] std::vector<Ref<UIView>> findBulletedListItemsInView(const Ref<UIView>& view);
    /// Closes the sheet and does what the tapped item is for.
    void handleBulletedListTap(const Ref<UITapGestureRecognizer>& recognizer);

    /// Tells what a backup holds and offers to make one.
    void createBackup();
    /// Closes the sheet that is shown and asks for a name.
    void showBackupNamePrompt(const Ref<NSObject>& sender);
    /// Makes the backup if there is a name, or else says that there is none.
    void handleBackupNameSave(const Ref<NSObject>& sender);
    /// Makes a backup of that name, as it stands, in place of one of the same name; without a name it is
    /// called by the time. Tells how that went.
    void saveBackupWithName(const std::optional<std::string>& name);

    /// Asks whether to restore a backup. The staging folder that is made stays when the answer is no.
    void restoreBackup(const std::optional<std::string>& fileName);
    /// Closes the sheet whose button `sender` is and restores.
    void handleRestoreConfirm(const Ref<UIBarButtonItem>& sender);
    /// Replaces all settings by those in the folder and takes its images, tells how that went and has the
    /// settings read again. Keys that no backup of ours holds are taken too: that is meant.
    void performRestoreFromFolder(const std::optional<std::string>& folder);

    /// Lists the backups, the newest first, or says that there are none.
    void showBackupList();
    void handleBackupListItemTap(const Ref<UITapGestureRecognizer>& recognizer);
    /// Offers what can be done with a backup.
    void showOptionsForBackup(const std::optional<std::string>& fileName);
    /// Shows a backup in another application.
    void openInFilza(const std::optional<std::string>& fileName);
    /// Offers the file to others; on a tablet from the middle of the page.
    void shareBackup(const std::optional<std::string>& fileName);
    /// Deletes a backup without asking, and shows the others if the folder is not empty then.
    void deleteBackup(const std::optional<std::string>& fileName);

    /// Has the user choose an archive to take in.
    void importBackup();
    /// Checks the first of the files and takes it in under its own name, unless there is a backup of that
    /// name: then the staging folder and the access to the file stay.
    void didPickDocumentsAtURLs(const Ref<UIDocumentPickerViewController>& picker,
                                const std::vector<Ref<NSURL>>& urls);
    /// Whether a folder holds settings with at least one of the essential keys. Why not is logged.
    [[nodiscard]] bool validateBackupContents(const std::optional<std::string>& folder);

private:
    /// Of what an item of a sheet does, among the values attached to its view.
    static constexpr auto backupActionKey = "BackupAction";

    enum class CleanUp : bool { Skipped, Wanted };

    // The parts of sheets.
    [[nodiscard]] Ref<OBWelcomeController> makeSheet(const std::optional<std::string>& title,
                                                     const std::optional<std::string>& detailText,
                                                     const std::optional<std::string>& symbolName);
    [[nodiscard]] Ref<UIBarButtonItem> makeBarButton(std::string_view title, UIBarButtonItemStyle style,
                                                     std::string_view action);
    /// A bar at the top of the sheet, which constraints are to put there. \param left, right may be empty
    [[nodiscard]] static Ref<UINavigationBar>
    addNavigationBar(UIView& sheetView, const Ref<UIBarButtonItem>& left, const Ref<UIBarButtonItem>& right);
    [[nodiscard]] static std::vector<Ref<NSLayoutConstraint>>
    constraintsOfNavigationBar(const UINavigationBar& bar, const UIView& sheetView);
    static void installNavigationBar(UIView& sheetView, const Ref<UIBarButtonItem>& left,
                                     const Ref<UIBarButtonItem>& right);
    void presentSheet(const Ref<OBWelcomeController>& sheet);
    /// Has an item of a sheet send `action` when it is tapped.
    void makeTappable(UIView& item, int tag, std::string_view action);

    void presentNamePrompt();
    /// Empty, which is the path of nothing, without a name or a folder.
    [[nodiscard]] std::string pathOfBackup(std::string_view fileName) const;
    void restoreFromArchive(const std::string& archivePath, const std::string& folder);
    [[nodiscard]] std::vector<BackupFile> backups() const;
    void addBackupsToSheet(OBWelcomeController& sheet, const std::vector<BackupFile>& backups);
    [[nodiscard]] CleanUp importFromURL(const NSURL& url, const std::string& folder);

    std::optional<std::string> backupsPath_;
    Ref<NSDateFormatter> dateFormatter_;
    std::optional<std::vector<std::string>> currentBackupsList_;
};
