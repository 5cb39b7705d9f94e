#include "BackupPageFixture.h"
#include "Foundation/NSFileManager.h"
#include "screen/FilePicker.h"

namespace {

constexpr auto picked = "/picked/From Afar.tar.gz";

class cxBackupRestoreControllerImportTest : public BackupPageFixture {
protected:
    cxBackupRestoreControllerImportTest() {
        show();
        EXPECT_TRUE(NSFileManager::defaultManager().createDirectoryAtPath("/picked", true));
    }

    /// As the picker hands a file over.
    Message pick(const std::string& path) {
        page->didPickDocumentsAtURLs(nullptr, {NSURL::fileURLWithPath(path)});
        settle();
        return message();
    }

    /// Picks an archive that holds those settings, and takes the message away.
    Message pickSettings(const std::string& settings) {
        pack(picked, {{"preferences.plist", settings}});
        auto shown = pick(picked);
        tapOn("OK");
        return shown;
    }

    static std::string dictionary(const std::string& content) {
        return "<plist version=\"1.0\"><dict>" + content + "</dict></plist>";
    }

    const Message success{"Success", "Backup imported successfully"};
    const Message wrongType{"Error", "Invalid file type. Please select a .tar.gz backup file."};
    const Message noArchive{"Error", "Failed to validate backup file"};
    const Message noBackup{"Error", "Invalid backup file. Missing required files."};
    const Message duplicate{
        "Error", "A backup with this name already exists. Please rename the backup file before importing."};
};

} // namespace

TEST_F(cxBackupRestoreControllerImportTest, APickerIsShown) {
    page->importBackup();
    settle();
    EXPECT_EQ(presented().kind(), "documentPicker");
    EXPECT_EQ(details().style, "formSheet");
}

TEST_F(cxBackupRestoreControllerImportTest, CancellingThePickerDoesNothing) {
    page->importBackup();
    settle();
    presented().filePicker()->cancelPicking();
    settle();
    EXPECT_FALSE(isPresenting());
    EXPECT_EQ(namesIn(backupsFolder), Names());
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxBackupRestoreControllerImportTest, WhatThePickerHandsOverIsTakenIn) {
    pack(picked, {{"preferences.plist", essentialPreferences}});
    page->importBackup();
    settle();
    ASSERT_TRUE(presented().filePicker()->pickFiles({device.hostPath(picked)}));
    settle();
    EXPECT_EQ(message(), success);
    EXPECT_EQ(namesIn(backupsFolder), Names{"From Afar.tar.gz"});
}

TEST_F(cxBackupRestoreControllerImportTest, ABackupIsCopiedUnderItsOwnNameAndThenListed) {
    pack(picked, {{"preferences.plist", essentialPreferences}});
    EXPECT_EQ(pick(picked), success);
    EXPECT_EQ(namesIn(backupsFolder), Names{"From Afar.tar.gz"});
    EXPECT_EQ(device.read(std::string(backupsFolder) + "/From Afar.tar.gz"), device.read(picked));
    EXPECT_EQ(namesIn(temporaryFolder), Names());
    tapOn("OK");
    EXPECT_EQ(presented().title(), "Available Backups");
    EXPECT_EQ(titlesOfItems(), Names{"From Afar.tar"});
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxBackupRestoreControllerImportTest, NothingPickedIsNothingDone) {
    page->didPickDocumentsAtURLs(nullptr, {});
    settle();
    EXPECT_FALSE(isPresenting());
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerImportTest, OnlyTheFirstOfSeveralFilesCounts) {
    pack(picked, {{"preferences.plist", essentialPreferences}});
    page->didPickDocumentsAtURLs(nullptr,
                                 {NSURL::fileURLWithPath(picked), NSURL::fileURLWithPath("/picked/b.gz")});
    settle();
    EXPECT_EQ(message(), success);
    EXPECT_EQ(namesIn(backupsFolder), Names{"From Afar.tar.gz"});
}

TEST_F(cxBackupRestoreControllerImportTest, OtherTypesAreRefusedBeforeAnythingIsTouched) {
    for (const auto* const name : {"a.tgz", "a.tar", "a", "a.zip", ".gz", "a.tar.gz.txt"}) {
        EXPECT_EQ(pick(std::string("/picked/") + name), wrongType) << name;
        tapOn("OK");
    }
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerImportTest, TheTypeIsToldByTheNameInAnyCase) {
    pack("/picked/A.TAR.GZ", {{"preferences.plist", essentialPreferences}});
    EXPECT_EQ(pick("/picked/A.TAR.GZ"), success);
    tapOn("OK");
    EXPECT_EQ(titlesOfItems(), Names{"A.TAR"});
}

TEST_F(cxBackupRestoreControllerImportTest, APlainGzIsTakenInThoughItIsNotListed) {
    pack("/picked/plain.gz", {{"preferences.plist", essentialPreferences}});
    EXPECT_EQ(pick("/picked/plain.gz"), success);
    EXPECT_EQ(namesIn(backupsFolder), Names{"plain.gz"});
    tapOn("OK");
    EXPECT_EQ(message(), (Message{"Info", "No backups found"}));
}

TEST_F(cxBackupRestoreControllerImportTest, WhatIsNoArchiveCannotBeChecked) {
    device.write(picked, "no archive");
    EXPECT_EQ(pick(picked), noArchive);
    tapOn("OK");
    EXPECT_EQ(pick("/picked/missing.tar.gz"), noArchive);
    EXPECT_EQ(namesIn(backupsFolder), Names());
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerImportTest, OneEssentialKeyIsEnoughWhateverItsValue) {
    for (const auto* const content : {"<key>kEnabled</key><false/>", "<key>kCustom</key><string></string>",
                                      "<key>kCustom</key><integer>0</integer><key>other</key><true/>"}) {
        pack(picked, {{"preferences.plist", dictionary(content)}});
        EXPECT_EQ(pick(picked), success) << content;
        tapOn("OK");
        tapOn("Done");
        EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath(std::string(backupsFolder) +
                                                                     "/From Afar.tar.gz"));
    }
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxBackupRestoreControllerImportTest, WithoutAnEssentialKeyItIsNoBackup) {
    EXPECT_EQ(pickSettings(dictionary("<key>textColor</key><string>blue</string>")), noBackup);
    EXPECT_EQ(pickSettings(dictionary("")), noBackup);
    EXPECT_EQ(device.log().take(),
              (Log{"preferences.plist missing essential keys", "preferences.plist missing essential keys"}));
    EXPECT_EQ(namesIn(backupsFolder), Names());
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerImportTest, SettingsThatAreNoDictionaryAreNoBackup) {
    EXPECT_EQ(pickSettings("<plist version=\"1.0\"><array/></plist>"), noBackup);
    EXPECT_EQ(pickSettings("corrupt"), noBackup);
    EXPECT_EQ(device.log().take(), (Log{"preferences.plist could not be read or is empty",
                                        "preferences.plist could not be read or is empty"}));
}

TEST_F(cxBackupRestoreControllerImportTest, WithoutSettingsItIsNoBackup) {
    pack(picked, {{"kCustomIcon-IMG", "icon"}});
    EXPECT_EQ(pick(picked), noBackup);
    EXPECT_EQ(device.log().take(), Log{"preferences.plist not found"});
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerImportTest, ANameThatIsTakenIsRefusedAndLeavesTheStagingFolder) {
    makeBackup("From Afar.tar.gz", {{"preferences.plist", dictionary("<key>kCustom</key><true/>")}});
    const auto before = device.read(std::string(backupsFolder) + "/From Afar.tar.gz");
    EXPECT_EQ(pickSettings(essentialPreferences), duplicate);
    EXPECT_EQ(device.read(std::string(backupsFolder) + "/From Afar.tar.gz"), before);
    ASSERT_EQ(namesIn(temporaryFolder).size(), 1U);
    EXPECT_EQ(namesIn(std::string(temporaryFolder) + "/" + namesIn(temporaryFolder).front()),
              Names{"preferences.plist"});
    EXPECT_FALSE(isPresenting());
}

TEST_F(cxBackupRestoreControllerImportTest, WithoutTheFolderOfBackupsTheCopyFails) {
    EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath(backupsFolder));
    EXPECT_EQ(pickSettings(essentialPreferences), (Message{"Error", "Failed to import backup file"}));
    EXPECT_FALSE(isPresenting());
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerImportTest, AFolderThatCannotBeMadeLeavesNothingToCheck) {
    pack(picked, {{"preferences.plist", essentialPreferences}});
    EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath(temporaryFolder));
    device.write(temporaryFolder, "a file");
    EXPECT_EQ(pick(picked), noBackup);
    EXPECT_EQ(namesIn(backupsFolder), Names());
}

TEST_F(cxBackupRestoreControllerImportTest, AFolderIsCheckedByItsSelectorToo) {
    device.write("/folder/preferences.plist", essentialPreferences);
    const auto check = [this](const char* folder) {
        return page->performSelector("validateBackupContents:", {PropertyList(folder)});
    };
    EXPECT_EQ(check("/folder"), MessageValue(PropertyList(true)));
    EXPECT_EQ(check("/nowhere"), MessageValue(PropertyList(false)));
}
