#include "BackupPageFixture.h"
#include "DesktopColor.h"
#include "Foundation/NSFileManager.h"
#include "ObjectiveC/AttachedValues.h"
#include "PreferenceKeys.h"
#include "PreferenceStore.h"

#include <algorithm>
#include <filesystem>
#include <random>

namespace {

constexpr auto blueSettings =
    "<plist version=\"1.0\"><dict><key>kEnabled</key><false/><key>textColor</key><string>blue</string>"
    "<key>unknown key</key><integer>3</integer></dict></plist>";

class cxBackupRestoreControllerRestoreTest : public BackupPageFixture {
protected:
    cxBackupRestoreControllerRestoreTest() { show(); }

    void askToRestore(const std::string& name) {
        page->restoreBackup(name);
        settle();
    }

    /// Restores, takes the message away and answers with that.
    Message restore(const std::string& name) {
        askToRestore(name);
        tapOn("Restore");
        auto shown = message();
        tapOn("OK");
        return shown;
    }

    [[nodiscard]] static std::string image(std::string_view name) {
        return std::string(imageFolder) + "/" + std::string(name);
    }

    [[nodiscard]] std::optional<std::string> readIfThere(const std::string& path) const {
        return exists(path) ? std::optional(device.read(path)) : std::nullopt;
    }

    const Message success{
        "Success", "Settings and images restored successfully. Changes will take effect after a respring."};
    const Message warning{"Warning", "Some files failed to restore"};
    const Message unreadable{"Error", "Failed to open archive for reading"};
    const Names told{"com.orvel.corvexprefs/ReloadPrefs"};
};

} // namespace

TEST_F(cxBackupRestoreControllerRestoreTest, ItAsksFirst) {
    makeBackup("a.tar.gz");
    askToRestore("a.tar.gz");
    EXPECT_EQ(presented().title(), "Confirm Restore");
    EXPECT_EQ(details().detail, "This will replace your current settings. Continue?");
    EXPECT_EQ(details().symbol, "exclamationmark.triangle.fill");
    EXPECT_EQ(details().style, "formSheet");
    EXPECT_FALSE(details().swipeDismissable);
    const auto items = details().items;
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].title, "Warning");
    EXPECT_EQ(items[0].description, "All current settings will be replaced");
    EXPECT_EQ(items[0].symbol, "exclamationmark.triangle");
    EXPECT_EQ(DesktopColor::resolve(items[0].tint, Traits()),
              DesktopColor::resolve(UIColor::systemRedColor(), Traits()));
    EXPECT_FALSE(items[0].tappable);
}

TEST_F(cxBackupRestoreControllerRestoreTest, TheSheetHasTwoButtonsOneOfThemRed) {
    askToRestore("a.tar.gz");
    EXPECT_EQ(leftButton()->content().title, "Cancel");
    EXPECT_FALSE(leftButton()->content().emphasised);
    EXPECT_EQ(rightButton()->content().title, "Restore");
    EXPECT_TRUE(rightButton()->content().emphasised);
    EXPECT_EQ(DesktopColor::resolve(rightButton()->tintColor(), Traits()),
              DesktopColor::resolve(UIColor::systemRedColor(), Traits()));
}

TEST_F(cxBackupRestoreControllerRestoreTest, ItsPathsAreAttachedToTheButton) {
    askToRestore("a.tar.gz");
    EXPECT_EQ(attachedValueOf<std::string>(*rightButton(), "ArchivePath"),
              std::string(backupsFolder) + "/a.tar.gz");
    const auto folder = attachedValueOf<std::string>(*rightButton(), "TempDir");
    ASSERT_EQ(namesIn(temporaryFolder).size(), 1U);
    EXPECT_EQ(folder, std::string(temporaryFolder) + "/" + namesIn(temporaryFolder).front());
}

TEST_F(cxBackupRestoreControllerRestoreTest, CancellingChangesNothingAndLeavesAnEmptyFolderEachTime) {
    store("red", "textColor");
    makeBackup("a.tar.gz", {{"preferences.plist", blueSettings}});
    for (auto attempt = 1U; attempt <= 2; ++attempt) {
        askToRestore("a.tar.gz");
        tapOn("Cancel");
        EXPECT_FALSE(isPresenting());
        const auto folders = namesIn(temporaryFolder);
        ASSERT_EQ(folders.size(), attempt);
        for (const auto& folder : folders)
            EXPECT_EQ(namesIn(std::string(temporaryFolder) + "/" + folder), Names());
    }
    EXPECT_EQ(stored("textColor"), PropertyList("red"));
    EXPECT_EQ(notifications(), Names());
}

TEST_F(cxBackupRestoreControllerRestoreTest, NothingIsDoneBeforeTheSheetHasGone) {
    makeBackup("a.tar.gz", {{"preferences.plist", blueSettings}});
    askToRestore("a.tar.gz");
    page->handleRestoreConfirm(rightButton());
    EXPECT_EQ(stored("textColor"), std::nullopt);
    settle();
    EXPECT_EQ(stored("textColor"), PropertyList("blue"));
}

TEST_F(cxBackupRestoreControllerRestoreTest, AllSettingsAreReplacedByThoseOfTheBackup) {
    store("old", "kCustomTitle");
    store("3.0.1", "LastVersionPopupShown");
    store(true, "kEnabled");
    makeBackup("a.tar.gz", {{"preferences.plist", blueSettings}});
    EXPECT_EQ(restore("a.tar.gz"), success);
    EXPECT_EQ(PreferenceStore::open()->dictionaryRepresentation(),
              (PropertyList::Dictionary{{"kEnabled", false}, {"textColor", "blue"}, {"unknown key", 3}}));
    EXPECT_EQ(stored("unknown key"), PropertyList(3)) << "keys of others are taken too";
    EXPECT_EQ(stored("kCustomTitle"), std::nullopt);
    EXPECT_EQ(notifications(), told);
    EXPECT_EQ(namesIn(temporaryFolder), Names());
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxBackupRestoreControllerRestoreTest, AnEmptyBackupEmptiesTheSettings) {
    store(true, "kEnabled");
    makeBackup("a.tar.gz", {{"preferences.plist", "<plist version=\"1.0\"><dict/></plist>"}});
    EXPECT_EQ(restore("a.tar.gz"), success);
    EXPECT_EQ(PreferenceStore::open()->dictionaryRepresentation(), PropertyList::Dictionary());
}

TEST_F(cxBackupRestoreControllerRestoreTest, WithoutImagesTheImagesStay) {
    for (const auto name : ImageFileSet)
        device.write(image(name), "old");
    makeBackup("a.tar.gz");
    EXPECT_EQ(restore("a.tar.gz"), success);
    for (const auto name : ImageFileSet)
        EXPECT_EQ(readIfThere(image(name)), "old") << name;
}

TEST_F(cxBackupRestoreControllerRestoreTest, TheImagesThatItHoldsAreReplacedAndTheOthersStay) {
    for (const auto name : ImageFileSet)
        device.write(image(name), "a longer old picture");
    makeBackup("a.tar.gz", {{"preferences.plist", essentialPreferences}, {"kCustomIcon-IMG", "new"}});
    EXPECT_EQ(restore("a.tar.gz"), success);
    EXPECT_EQ(readIfThere(image("kCustomIcon-IMG")), "new");
    EXPECT_EQ(readIfThere(image("kCustomImage-IMG")), "a longer old picture");
    EXPECT_EQ(readIfThere(image("customBackgroundImage-IMG")), "a longer old picture");
}

TEST_F(cxBackupRestoreControllerRestoreTest, TheFolderOfTheImagesIsMade) {
    makeBackup("a.tar.gz", {{"preferences.plist", essentialPreferences}, {"kCustomImage-IMG", "new"}});
    EXPECT_EQ(restore("a.tar.gz"), success);
    EXPECT_EQ(namesIn(imageFolder), Names{"kCustomImage-IMG"});
    EXPECT_EQ(readIfThere(image("kCustomImage-IMG")), "new");
}

TEST_F(cxBackupRestoreControllerRestoreTest, NoOtherFileOfTheBackupIsTaken) {
    makeBackup("a.tar.gz", {{"preferences.plist", essentialPreferences}, {"other-IMG", "new"}});
    EXPECT_EQ(restore("a.tar.gz"), success);
    EXPECT_EQ(namesIn(imageFolder), Names());
}

TEST_F(cxBackupRestoreControllerRestoreTest, WithoutReadableSettingsTheImagesAreRestoredAllTheSame) {
    for (const auto* const settings :
         {"<plist version=\"1.0\"><array/></plist>", "no property list", "", "(none)"}) {
        store("kept", "textColor");
        device.write(image("kCustomImage-IMG"), "old");
        Files files{{"kCustomImage-IMG", "new"}};
        if (settings != std::string("(none)"))
            files.emplace("preferences.plist", settings);
        makeBackup("a.tar.gz", files);
        EXPECT_EQ(restore("a.tar.gz"), warning) << settings;
        EXPECT_EQ(stored("textColor"), PropertyList("kept"));
        EXPECT_EQ(readIfThere(image("kCustomImage-IMG")), "new");
        EXPECT_EQ(notifications(), told);
        EXPECT_EQ(namesIn(temporaryFolder), Names());
    }
}

TEST_F(cxBackupRestoreControllerRestoreTest, ABackupThatHasGoneIsAnError) {
    store("kept", "textColor");
    EXPECT_EQ(restore("nowhere.tar.gz"), unreadable);
    EXPECT_EQ(stored("textColor"), PropertyList("kept"));
    EXPECT_EQ(notifications(), Names());
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerRestoreTest, WhatIsNoArchiveIsAnError) {
    device.write(std::string(backupsFolder) + "/a.tar.gz", "no archive");
    EXPECT_EQ(restore("a.tar.gz"), unreadable);
    EXPECT_EQ(notifications(), Names());
}

TEST_F(cxBackupRestoreControllerRestoreTest, OfADamagedArchiveWhatCouldBeReadIsRestored) {
    // NOLINTNEXTLINE(*-msc32-c,*-msc51-cpp,*-generator-seed): the same bytes every time
    std::mt19937 random(20261122); // what cannot be compressed
    std::string bytes(300'000, '\0');
    std::ranges::generate(bytes, [&random] { return static_cast<char>(random()); });
    makeBackup("a.tar.gz", {{"kCustomIcon-IMG", bytes}});
    const auto path = std::string(backupsFolder) + "/a.tar.gz";
    device.write(path, device.read(path).substr(0, 200'000));
    EXPECT_EQ(restore("a.tar.gz"), warning);
    EXPECT_EQ(notifications(), told);
    const auto restored = readIfThere(image("kCustomIcon-IMG")).value_or("");
    EXPECT_FALSE(restored.empty());
    EXPECT_TRUE(bytes.starts_with(restored));
}

TEST_F(cxBackupRestoreControllerRestoreTest, AnImageThatCannotBeCopiedIsLoggedAndTheOthersAreRestored) {
    device.write(image("kCustomImage-IMG"), "old");
    makeBackup("a.tar.gz", {{"preferences.plist", essentialPreferences}, {"kCustomIcon-IMG", "new"}});
    std::filesystem::create_directory(device.hostPath("/locked"));
    std::filesystem::create_symlink("/locked/nowhere/x", device.hostPath(image("kCustomIcon-IMG")));
    EXPECT_EQ(restore("a.tar.gz"), warning);
    const auto log = device.log().take();
    ASSERT_EQ(log.size(), 1U);
    EXPECT_TRUE(log[0].starts_with("Error restoring file kCustomIcon-IMG: Error Domain=NSCocoaErrorDomain"))
        << log[0];
    EXPECT_EQ(stored("kEnabled"), PropertyList(true));
    EXPECT_EQ(notifications(), told);
}

TEST_F(cxBackupRestoreControllerRestoreTest, WithoutAFolderForTheImagesEachCopyFails) {
    device.write(std::string(imageFolder).substr(0, std::string(imageFolder).rfind('/')), "a file");
    makeBackup("a.tar.gz", {{"preferences.plist", essentialPreferences},
                            {"kCustomImage-IMG", "1"},
                            {"kCustomIcon-IMG", "2"},
                            {"customBackgroundImage-IMG", "3"}});
    EXPECT_EQ(restore("a.tar.gz"), warning);
    const auto log = device.log().take();
    ASSERT_EQ(log.size(), 3U);
    for (std::size_t index = 0; index < log.size(); ++index)
        EXPECT_TRUE(log[index].starts_with("Error restoring file " + std::string(ImageFileSet.at(index))));
    EXPECT_EQ(stored("kEnabled"), PropertyList(true));
}

TEST_F(cxBackupRestoreControllerRestoreTest, ARestoredFolderTellsWhatItDid) {
    device.write("/unpacked/preferences.plist", blueSettings);
    page->performSelector("performRestoreFromFolder:", {PropertyList("/unpacked")});
    settle();
    EXPECT_EQ(message(), success);
    EXPECT_EQ(notifications(), told);
    EXPECT_TRUE(exists("/unpacked")) << "it belongs to somebody else";
}

TEST_F(cxBackupRestoreControllerRestoreTest, WithoutAFolderNothingIsRestored) {
    store("kept", "textColor");
    page->performRestoreFromFolder(std::nullopt);
    settle();
    EXPECT_EQ(message(), warning);
    EXPECT_EQ(stored("textColor"), PropertyList("kept"));
}

TEST_F(cxBackupRestoreControllerRestoreTest, WithoutItsButtonNothingIsConfirmed) {
    askToRestore("a.tar.gz");
    page->handleRestoreConfirm(nullptr);
    settle();
    EXPECT_EQ(presented().title(), "Confirm Restore");
}

TEST_F(cxBackupRestoreControllerRestoreTest, WithoutATemporaryFolderTheArchiveYieldsNothing) {
    store("kept", "textColor");
    makeBackup("a.tar.gz", {{"preferences.plist", blueSettings}});
    EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath(temporaryFolder));
    device.write(temporaryFolder, "a file");
    EXPECT_EQ(restore("a.tar.gz"), warning);
    EXPECT_EQ(stored("textColor"), PropertyList("kept"));
}
