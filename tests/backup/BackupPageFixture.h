#pragma once

#include "PanePage.h"
#include "controllers/DesktopBarButtonItem.h"
#include "cxBackupRestoreController.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The page of backups on a device's screen, in a navigation controller, and what it does to the device's
/// files.
class BackupPageFixture : public PanePage {
protected:
    using Names = std::vector<std::string>;
    using Files = std::map<std::string, std::string>;
    /// A message's title and text.
    using Message = std::pair<std::string, std::string>;

    static constexpr auto backupsFolder = "/var/mobile/Documents/CorvexBackups";
    static constexpr auto temporaryFolder = "/var/mobile/tmp";
    static constexpr auto imageFolder = "/var/jb/var/mobile/Library/Preferences/com.orvel.corvexprefs";
    static constexpr auto essentialPreferences =
        "<plist version=\"1.0\"><dict><key>kEnabled</key><true/></dict></plist>";

    explicit BackupPageFixture(const Screen::Options& options = {});

    void show() { showPage(page); }

    /// The page that is shown is another one.
    void openAnew();

    // What is presented topmost.
    [[nodiscard]] bool isPresenting() const;
    /// Throws where nothing is.
    [[nodiscard]] const Presented& presented();
    [[nodiscard]] Presented::Details details();
    [[nodiscard]] Message message();
    [[nodiscard]] Names titlesOfItems();
    /// Empty when the sheet's bar has none there.
    [[nodiscard]] Ref<DesktopBarButtonItem> leftButton();
    [[nodiscard]] Ref<DesktopBarButtonItem> rightButton();
    [[nodiscard]] Ref<OBWelcomeController> sheet() const;

    // As the user does.
    /// A button, an item or a field of that name in what is presented topmost; all is at rest afterwards.
    void tapOn(std::string_view label);
    void type(const std::string& text);
    /// Through both sheets.
    void createNamed(const std::string& name);
    /// Shows the list and the sheet of what can be done with a backup.
    void chooseBackup(const std::string& title);

    // What is on the device.
    [[nodiscard]] static Names namesIn(std::string_view folder);
    [[nodiscard]] bool exists(std::string_view path) const;
    /// The files of an archive by name.
    [[nodiscard]] Files unpacked(const std::string& archivePath);
    void pack(const std::string& archivePath, const Files& files);
    /// A backup in its folder, created later than all there are.
    void makeBackup(const std::string& name,
                    const Files& files = {{"preferences.plist", essentialPreferences}});
    /// A file in the folder of backups, created later than all there are.
    void makeFile(const std::string& name);
    [[nodiscard]] static Names notifications();

    Ref<cxBackupRestoreController> page;
};
