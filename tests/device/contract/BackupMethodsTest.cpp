// The methods of the page of backups that its own sheets do not lead through, called as Objective-C calls
// them.

#include "BackupPageFixture.h"
#include "Journal.h"
#include "SystemStandIns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

namespace files = std::filesystem;

class BackupMethodsTest : public BackupPageFixture {
protected:
    /// The user chooses a file of the documents' folder.
    void importFile(const std::string& name) const {
        perform(page, "importBackup", nullptr);
        pickDocument(presentedBy(page), (folder + "/" + name).c_str());
    }

    /// The sheets' titles and texts that were made since.
    [[nodiscard]] static Lines sheets() {
        Lines lines = takeJournal();
        std::erase_if(lines, [](const std::string& line) { return !line.contains("symbolName:]"); });
        return lines;
    }

    /// The beginnings and ends of access to a file while it is imported.
    [[nodiscard]] Lines accessTo(const std::string& name) const {
        takeJournal();
        importFile(name);
        Lines lines = takeJournal();
        std::erase_if(lines, [](const std::string& line) { return !line.contains("AccessingSecurity"); });
        for (auto& line : lines)
            line = line.substr(line.find(' ') + 1);
        return lines;
    }

    /// One of them. \param what "start" or "stop"
    [[nodiscard]] std::string accessLine(const std::string& what, const std::string& name) const {
        return what + "AccessingSecurityScopedResource] " + folder + "/" + name;
    }
};

constexpr auto sheetMade = "-[OBWelcomeController initWithTitle:detailText:symbolName:] ";

} // namespace

TEST_F(BackupMethodsTest, PropertiesKeepWhatTheyAreSetTo) {
    perform(page, "setBackupsPath:", text("/elsewhere"));
    EXPECT_EQ(describedAnswer(page, "backupsPath"), "\"/elsewhere\"");
    perform(page, "setCurrentBackupsList:", listOf(text("a"), text("b")));
    EXPECT_EQ(describedAnswer(page, "currentBackupsList"), "[\"a\", \"b\"]");
    perform(page, "setCurrentBackupsList:", nullptr);
    EXPECT_EQ(perform(page, "currentBackupsList", nullptr), nullptr);
    perform(page, "setDateFormatter:", nullptr);
    EXPECT_EQ(perform(page, "dateFormatter", nullptr), nullptr);
}

TEST_F(BackupMethodsTest, AMessageIsShownWithItsTitle) {
    performWithTwo(page, "showMessage:withTitle:", text("Text"), text("Title"));
    EXPECT_EQ(sheets(), Lines{sheetMade + std::string("\"Title\" \"Text\" \"info.circle.fill\"")});
}

TEST_F(BackupMethodsTest, AMessageMayHaveNothingToDoAfterwards) {
    performWithMore(page, "showMessage:withTitle:completion:", text("Text"), text("Title"), nullptr, 0);
    EXPECT_EQ(sheets(), Lines{sheetMade + std::string("\"Title\" \"Text\" \"info.circle.fill\"")});
}

TEST_F(BackupMethodsTest, ASheetIsMadeAsItIsAskedFor) {
    auto* const sheet = performWithMore(
        page, "createWelcomeControllerWithTitle:detailText:symbolName:backdropStyle:", text("Title"),
        text("Text"), text("gear"), 3);
    EXPECT_STREQ(class_getName(object_getClass(sheet)), "OBWelcomeController");
    const auto lines = takeJournal();
    EXPECT_EQ(lines.front(), sheetMade + std::string("\"Title\" \"Text\" \"gear\""));
    EXPECT_TRUE(std::ranges::count(lines, "+[_UIBackdropViewSettings settingsForStyle:] 3") == 1);
}

TEST_F(BackupMethodsTest, AnotherFormatterTellsTheDates) {
    auto* const formatter = newByName("NSDateFormatter");
    perform(page, "setDateFormatter:", formatter);
    EXPECT_EQ(perform(page, "dateFormatter", nullptr), formatter);
    objc_release(formatter);
}

TEST_F(BackupMethodsTest, AnArchiveIsSharedFromTheMiddleOfATablet) {
    save("a");
    setFrameOf(viewOf(page), CGRectMake(10, 20, 600, 800));
    perform(page, "shareBackup:", text("a.tar.gz"));
    auto lines = takeJournal();
    std::erase_if(lines, [](const std::string& line) {
        return !line.contains("Popover") && !line.contains("Activity");
    });
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0], "-[UIActivityViewController initWithActivityItems:applicationActivities:] [file://" +
                            backup("a.tar.gz") + "] nil");
    EXPECT_TRUE(lines[1].starts_with("-[UIPopoverPresentationController setSourceView:]"));
    EXPECT_EQ(lines[2], "-[UIPopoverPresentationController setSourceRect:] {{300, 400}, {0, 0}}");
    EXPECT_EQ(lines[3], "-[cxBackupRestoreController presentViewController:animated:completion:] "
                        "UIActivityViewController 1");
}

TEST_F(BackupMethodsTest, OnAPhoneAnArchiveIsSharedFromNowhere) {
    save("a");
    setDeviceIdiom(0);
    perform(page, "shareBackup:", text("a.tar.gz"));
    setDeviceIdiom(1);
    auto lines = takeJournal();
    std::erase_if(lines, [](const std::string& line) {
        return !line.contains("opover") && !line.contains("presentViewController");
    });
    EXPECT_EQ(lines, Lines{("-[cxBackupRestoreController presentViewController:animated:completion:] "
                            "UIActivityViewController 1")});
}

TEST_F(BackupMethodsTest, WithoutTheSheetThatSharesNothingIsShown) {
    save("a");
    refuseInitialisersOf("UIActivityViewController");
    perform(page, "shareBackup:", text("a.tar.gz"));
    refuseInitialisersOf(nullptr);
    EXPECT_EQ(presentedBy(page), nullptr);
    EXPECT_EQ(aliveOf("UIActivityViewController"), 0);
}

TEST_F(BackupMethodsTest, AnArchiveIsShownByTheOtherApplication) {
    save("a");
    perform(page, "openInFilza:", text("a.tar.gz"));
    const auto lines = takeJournal();
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines[0], "-[UIApplication canOpenURL:] filza://view" + backup("a.tar.gz"));
    EXPECT_EQ(lines[1], "-[UIApplication openURL:options:completionHandler:] filza://view" +
                            backup("a.tar.gz") + " 0 completion");
}

TEST_F(BackupMethodsTest, OptionsAndDeletingAreThereForAnyBackup) {
    save("a");
    perform(page, "showOptionsForBackup:", text("a.tar.gz"));
    EXPECT_EQ(sheets(),
              Lines{sheetMade + std::string("\"a.tar\" \"Choose an action for this backup\" \"doc.fill\"")});
    perform(page, "deleteBackup:", text("a.tar.gz"));
    EXPECT_FALSE(files::exists(backup("a.tar.gz")));
}

TEST_F(BackupMethodsTest, ASheetIsMadeAndDismissed) {
    auto* const list = newByName("UIView");
    EXPECT_EQ(countOfArray(perform(page, "findBulletedListItemsInView:", list)), 0U);
    objc_release(list);
    perform(page, "createBackup", nullptr);
    EXPECT_NE(presentedBy(page), nullptr);
    perform(page, "dismissWelcomeController:", leftButtonOf(page));
    EXPECT_EQ(presentedBy(page), nullptr);
}

TEST_F(BackupMethodsTest, AFolderWithoutSettingsIsNoBackup) {
    perform(page, "performRestoreFromFolder:", text(folder.c_str()));
    EXPECT_FALSE(sheets().empty());
    EXPECT_EQ(perform(page, "validateBackupContents:", text(folder.c_str())), nullptr);
    EXPECT_EQ(takeJournal(), Lines{"log: preferences.plist not found"});
}

TEST_F(BackupMethodsTest, SettingsComeBeforeImagesAndTheExtensionIsToldLast) {
    const files::path images = placeOfFile("/var/jb/var/mobile/Library/Preferences/com.orvel.corvexprefs");
    files::create_directories(images.parent_path());
    std::ofstream(images) << "a file, into which nothing can be copied";
    std::ofstream(folder + "/preferences.plist")
        << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<plist version=\"1.0\"><dict><key>kEnabled</key><true/></dict></plist>";
    std::ofstream(folder + "/kCustomIcon-IMG") << "icon";
    perform(page, "performRestoreFromFolder:", text(folder.c_str()));
    auto lines = takeJournal();
    std::erase_if(lines, [](const std::string& line) {
        return !line.starts_with("-[SuiteDefaults") && !line.starts_with("log:") &&
               !line.contains("symbolName:]") && !line.contains("notification");
    });
    ASSERT_EQ(lines.size(), 6U) << testing::PrintToString(lines);
    EXPECT_EQ((Lines{lines.begin(), lines.begin() + 3}),
              (Lines{"-[SuiteDefaults removePersistentDomainForName:] \"com.orvel.corvexprefs\"",
                     "-[SuiteDefaults setObject:forKey:] 1 \"kEnabled\"", "-[SuiteDefaults synchronize]"}));
    EXPECT_TRUE(lines[3].starts_with("log: Error restoring file kCustomIcon-IMG: ")) << lines[3];
    EXPECT_EQ(lines[4], sheetMade + std::string("\"Warning\" \"Some files failed to restore\" "
                                                "\"info.circle.fill\""));
    EXPECT_EQ(lines[5], "Darwin notification com.orvel.corvexprefs/ReloadPrefs");
}

TEST_F(BackupMethodsTest, AnArchiveThatIsNoneIsToldAndChangesNothing) {
    std::ofstream(backup("broken.tar.gz")) << std::string(2000, 'x');
    storeValue(text("blue"), "textColor");
    perform(page, "restoreBackup:", text("broken.tar.gz"));
    perform(page, "handleRestoreConfirm:", rightButtonOf(page));
    const auto shown = sheets();
    EXPECT_TRUE(std::ranges::any_of(shown, [](const std::string& line) {
        return line.contains("\"Error\"");
    })) << testing::PrintToString(shown);
    EXPECT_EQ(described(storedValue("textColor")), "\"blue\"");
}

TEST_F(BackupMethodsTest, WhatIsNoArchiveIsNotImported) {
    perform(page, "importBackup", nullptr);
    auto* const picker = presentedBy(page);
    const auto other = folder + "/picture.png";
    std::ofstream(other) << "picture";
    pickDocument(picker, other.c_str());
    EXPECT_FALSE(sheets().empty());
    EXPECT_FALSE(files::exists(backup("picture.png")));
    perform(page, "importBackup", nullptr);
    pickDocument(presentedBy(page), (folder + "/missing.tar.gz").c_str());
    EXPECT_FALSE(sheets().empty());
}

TEST_F(BackupMethodsTest, WhatFailsIsToldInItsOwnWords) {
    const auto isTold = [](const std::string& words, const std::string& title) {
        return std::ranges::any_of(sheets(), [&](const std::string& line) {
            return line.starts_with(sheetMade + ('"' + title + "\" \"" + words + '"'));
        });
    };
    perform(page, "showBackupList", nullptr);
    EXPECT_TRUE(isTold("No backups found", "Info"));
    perform(page, "shareBackup:", text("missing.tar.gz"));
    EXPECT_TRUE(isTold("Backup file not found", "Error"));
    std::ofstream(folder + "/picture.png") << "picture";
    importFile("picture.png");
    EXPECT_TRUE(isTold("Invalid file type. Please select a .tar.gz backup file.", "Error"));
    std::ofstream(folder + "/broken.tar.gz") << std::string(2000, 'x');
    importFile("broken.tar.gz");
    EXPECT_TRUE(isTold("Failed to validate backup file", "Error"));
    storeValue(boolean(true), "kEnabled");
    save("a");
    files::copy_file(backup("a.tar.gz"), folder + "/a.tar.gz");
    importFile("a.tar.gz");
    EXPECT_TRUE(isTold(
        "A backup with this name already exists. Please rename the backup file before importing.", "Error"));
}

// That it goes on where the name is taken is meant.
TEST_F(BackupMethodsTest, AccessToWhatIsImportedEndsUnlessItsNameIsTaken) {
    std::ofstream(folder + "/broken.tar.gz") << std::string(2000, 'x');
    EXPECT_EQ(accessTo("broken.tar.gz"),
              (Lines{accessLine("start", "broken.tar.gz"), accessLine("stop", "broken.tar.gz")}));
    storeValue(boolean(true), "kEnabled");
    save("a");
    files::copy_file(backup("a.tar.gz"), folder + "/a.tar.gz");
    EXPECT_EQ(accessTo("a.tar.gz"), Lines{accessLine("start", "a.tar.gz")});
    files::rename(folder + "/a.tar.gz", folder + "/b.tar.gz");
    EXPECT_EQ(accessTo("b.tar.gz"), (Lines{accessLine("start", "b.tar.gz"), accessLine("stop", "b.tar.gz")}));
}

TEST_F(BackupMethodsTest, AccessThatWasRefusedIsNotEnded) {
    std::ofstream(folder + "/broken.tar.gz") << std::string(2000, 'x');
    refuseAccess(true);
    const auto lines = accessTo("broken.tar.gz");
    refuseAccess(false);
    EXPECT_EQ(lines, Lines{accessLine("start", "broken.tar.gz")});
}

TEST_F(BackupMethodsTest, APageThatEndsIsTakenFromTheObservers) {
    auto* const other = newByName("cxBackupRestoreController");
    countRemovalsOf(other);
    objc_release(other);
    EXPECT_EQ(aliveOf("cxBackupRestoreController"), 1);
    EXPECT_EQ(countedRemovals(), 1U);
    countRemovalsOf(nullptr);
}

TEST_F(BackupMethodsTest, AnArchiveMayBeNamedInCapitals) {
    storeValue(boolean(true), "kEnabled");
    save("a");
    files::rename(backup("a.tar.gz"), folder + "/B.TAR.GZ");
    importFile("B.TAR.GZ");
    EXPECT_TRUE(files::exists(backup("B.TAR.GZ"))) << testing::PrintToString(sheets());
    takeJournal();
    perform(page, "showBackupList", nullptr);
    EXPECT_TRUE(std::ranges::any_of(takeJournal(), [](const std::string& line) {
        return line.starts_with("-[OBWelcomeController addBulletedListItemWithTitle:") &&
               line.contains(" \"B");
    }));
}

TEST_F(BackupMethodsTest, WithoutItsFolderNoBackupIsMade) {
    files::remove_all(folder);
    perform(page, "saveBackupWithName:", text("a"));
    EXPECT_FALSE(files::exists(backup("a.tar.gz")));
    EXPECT_FALSE(sheets().empty());
}

TEST_F(BackupMethodsTest, TheOtherApplicationThatIsMissingOrFailsIsTold) {
    perform(page, "openInFilza:", nullptr);
    perform(page, "shareBackup:", text("missing.tar.gz"));
    perform(page, "deleteBackup:", text("missing.tar.gz"));
    EXPECT_FALSE(takeJournal().empty());
}

TEST_F(BackupMethodsTest, EveryKindOfSettingSurvivesABackup) {
    const std::vector<std::pair<const char*, id>> settings{
        {"textColor", text("blue")},
        {"kEnabled", boolean(true)},
        {"blurRadius", number(0.25)},
        {"imageHeight", wholeNumber(-5)},
        {"organizedSettingsPosition", largeNumber(18446744073709551615ULL)}};
    for (const auto& [key, value] : settings)
        storeValue(value, key);
    save("all");
    forgetSuites();
    perform(page, "restoreBackup:", text("all.tar.gz"));
    perform(page, "handleRestoreConfirm:", rightButtonOf(page));
    for (const auto& [key, value] : settings)
        EXPECT_EQ(described(storedValue(key)), described(value)) << key;
}
