#include "BackupPageFixture.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSFileManager.h"
#include "LowerLimit.h"
#include "PreferenceKeys.h"
#include "PreferenceStore.h"

#include <sys/resource.h>

#include <algorithm>
#include <filesystem>
#include <random>

namespace {

class cxBackupRestoreControllerSaveTest : public BackupPageFixture {
protected:
    cxBackupRestoreControllerSaveTest() { show(); }

    /// Makes a backup, takes its message away and answers with that.
    Message save(const std::optional<std::string>& name) {
        page->saveBackupWithName(name);
        settle();
        auto shown = message();
        tapOn("OK");
        return shown;
    }

    [[nodiscard]] static std::string pathOf(const std::string& file) {
        return std::string(backupsFolder) + "/" + file;
    }

    /// The settings in an archive.
    [[nodiscard]] std::optional<PropertyList::Dictionary> settingsIn(const std::string& archive) {
        device.write("/read.plist", unpacked(archive).at("preferences.plist"));
        return dictionaryWithContentsOfFile("/read.plist");
    }

    const Message success{"Success", "Backup created successfully"};
};

std::string image(std::string_view name) {
    return "/var/jb/var/mobile/Library/Preferences/com.orvel.corvexprefs/" + std::string(name);
}

} // namespace

TEST_F(cxBackupRestoreControllerSaveTest, WithoutANameItIsCalledByTheTime) {
    EXPECT_EQ(save(std::nullopt), success);
    EXPECT_EQ(namesIn(backupsFolder), Names{"Backup_20261116-0312.tar.gz"});
    EXPECT_EQ(save(""), success);
    EXPECT_EQ(namesIn(backupsFolder), Names{"Backup_20261116-0312.tar.gz"})
        << "the second within a minute replaces the first";
    advance(std::chrono::minutes(1));
    EXPECT_EQ(save(""), success);
    EXPECT_EQ(namesIn(backupsFolder), (Names{"Backup_20261116-0312.tar.gz", "Backup_20261116-0313.tar.gz"}));
}

TEST_F(cxBackupRestoreControllerSaveTest, TheTimeIsTheLocalOneOfADayOf24Hours) {
    advance(std::chrono::hours(12));
    EXPECT_EQ(save(std::nullopt), success);
    EXPECT_EQ(namesIn(backupsFolder), Names{"Backup_20261116-1512.tar.gz"});
}

TEST_F(cxBackupRestoreControllerSaveTest, TheYearIsThatOfTheDayAndNotOfItsWeek) {
    advance(std::chrono::days(45)); // to the last day of the year, whose week is the first of the next
    EXPECT_EQ(save(std::nullopt), success);
    EXPECT_EQ(namesIn(backupsFolder), Names{"Backup_20261231-0312.tar.gz"});
}

TEST_F(cxBackupRestoreControllerSaveTest, AnyNameIsTakenAsItStands) {
    for (const auto* const name :
         {"My Settings", " ", "...", ".hidden", "Grüße 🎨", "a\nb", "a.tar.gz", "%@", "~"}) {
        EXPECT_EQ(save(name), success) << name;
        EXPECT_EQ(namesIn(backupsFolder), Names{std::string(name) + ".tar.gz"});
        EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath(pathOf(std::string(name) + ".tar.gz")));
    }
}

TEST_F(cxBackupRestoreControllerSaveTest, ASlashInTheNameIsAFolderThatIsNotThere) {
    EXPECT_EQ(save("a/b"), (Message{"Error", "Failed to open archive for writing"}));
    EXPECT_EQ(namesIn(backupsFolder), Names());
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerSaveTest, TheNameMayBeAsLongAsTheFileSystemTakesWithItsExtension) {
    constexpr std::size_t longest = 255;
    const std::string longestName(longest - std::string_view(".tar.gz").size(), 'n');
    EXPECT_EQ(save(longestName), success);
    EXPECT_EQ(save(longestName + "n"), (Message{"Error", "Failed to open archive for writing"}));
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerSaveTest, TheFolderOfBackupsHoldsNothingBesides) {
    EXPECT_EQ(save("a"), success);
    EXPECT_EQ(namesIn(backupsFolder), Names{"a.tar.gz"});
    EXPECT_EQ(namesIn(temporaryFolder), Names());
    EXPECT_EQ(device.log().take(), Log());
    EXPECT_EQ(notifications(), Names());
}

TEST_F(cxBackupRestoreControllerSaveTest, OnAFreshSystemItHoldsEmptySettingsAlone) {
    EXPECT_EQ(save("a"), success);
    EXPECT_EQ(unpacked(pathOf("a.tar.gz")).size(), 1U);
    EXPECT_EQ(settingsIn(pathOf("a.tar.gz")), PropertyList::Dictionary());
}

TEST_F(cxBackupRestoreControllerSaveTest, ItHoldsTheKeysOfTheCatalogueThatAreSetAndNoOthers) {
    PropertyList::Dictionary expected;
    for (const auto key : PreferenceKeyCatalogue)
        expected.emplace(key, "value of " + std::string(key));
    for (const auto& [key, value] : expected)
        store(value, key);
    store("3.0.1", "LastVersionPopupShown");
    store(true, "hideCellSeparator");
    save("all");
    EXPECT_EQ(settingsIn(pathOf("all.tar.gz")), expected);
}

TEST_F(cxBackupRestoreControllerSaveTest, ItsSettingsAreWrittenAsXml) {
    store(true, "kEnabled");
    save("a");
    const auto settings = unpacked(pathOf("a.tar.gz")).at("preferences.plist");
    EXPECT_TRUE(settings.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>")) << settings;
    EXPECT_TRUE(settings.contains("<key>kEnabled</key>\n\t<true/>")) << settings;
}

TEST_F(cxBackupRestoreControllerSaveTest, ValuesNotYetWrittenToTheFileCountToo) {
    PreferenceStore::open()->setObject(7, "blurRadius");
    save("a");
    EXPECT_EQ(settingsIn(pathOf("a.tar.gz")), (PropertyList::Dictionary{{"blurRadius", 7}}));
}

TEST_F(cxBackupRestoreControllerSaveTest, ItHoldsTheImagesThatAreThereByteForByte) {
    const std::string bytes("\0\xff\n\r\0picture", 13);
    device.write(image("kCustomImage-IMG"), bytes);
    device.write(image("customBackgroundImage-IMG"), "");
    device.write(image("another"), "not known");
    save("a");
    const auto files = unpacked(pathOf("a.tar.gz"));
    EXPECT_EQ(files.size(), 3U);
    EXPECT_EQ(files.at("kCustomImage-IMG"), bytes);
    EXPECT_EQ(files.at("customBackgroundImage-IMG"), "");
    EXPECT_EQ(device.read(image("kCustomImage-IMG")), bytes) << "the image stays";
}

TEST_F(cxBackupRestoreControllerSaveTest, AnImageWhoseLinkLeadsNowhereIsMissing) {
    device.write(image("kCustomIcon-IMG"), "icon");
    std::filesystem::create_symlink("/nowhere", device.hostPath(image("kCustomImage-IMG")));
    EXPECT_EQ(save("a"), success);
    EXPECT_EQ(unpacked(pathOf("a.tar.gz")).size(), 2U);
}

TEST_F(cxBackupRestoreControllerSaveTest, WithoutATemporaryFolderNothingIsMade) {
    EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath(temporaryFolder));
    device.write(temporaryFolder, "a file");
    EXPECT_EQ(save("a"), (Message{"Error", "Failed to create temporary directory"}));
    EXPECT_EQ(namesIn(backupsFolder), Names());
}

TEST_F(cxBackupRestoreControllerSaveTest, ATemporaryFolderThatHasGoneIsMadeAnew) {
    EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath(temporaryFolder));
    EXPECT_EQ(save("a"), success);
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerSaveTest, WithoutItsFolderTheArchiveCannotBeOpened) {
    const Message failure{"Error", "Failed to open archive for writing"};
    EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath(backupsFolder));
    EXPECT_EQ(save("a"), failure);
    device.write(backupsFolder, "a file");
    EXPECT_EQ(save("a"), failure);
    page->setBackupsPath(std::nullopt);
    EXPECT_EQ(save("a"), failure);
    EXPECT_EQ(namesIn(temporaryFolder), Names());
    EXPECT_FALSE(exists("/a.tar.gz"));
}

TEST_F(cxBackupRestoreControllerSaveTest, AFolderInThePlaceOfTheArchiveIsLeftAlone) {
    device.write(pathOf("a.tar.gz/kept"), "kept");
    EXPECT_EQ(save("a"), (Message{"Error", "Failed to open archive for writing"}));
    EXPECT_EQ(device.read(pathOf("a.tar.gz/kept")), "kept");
}

TEST_F(cxBackupRestoreControllerSaveTest, PackingThatFailsLaterIsAnErrorWithoutATextAndLeavesWhatThereIs) {
    // NOLINTNEXTLINE(*-msc32-c,*-msc51-cpp,*-generator-seed): the same bytes every time
    std::mt19937 random(20261122); // what cannot be compressed
    for (const auto name : ImageFileSet) {
        std::string bytes(90'000, '\0');
        std::ranges::generate(bytes, [&random] { return static_cast<char>(random()); });
        device.write(image(name), bytes);
    }
    {
        const LowerLimit fileSize(RLIMIT_FSIZE, 100'000);
        EXPECT_EQ(save("a"), (Message{"Error", ""}));
    }
    EXPECT_EQ(namesIn(backupsFolder), Names{"a.tar.gz"});
    EXPECT_EQ(namesIn(temporaryFolder), Names());
}

TEST_F(cxBackupRestoreControllerSaveTest, AnImageThatCannotBeCopiedIsAbsent) {
    device.write(image("kCustomImage-IMG"), std::string(2000, 'x'));
    device.write(image("kCustomIcon-IMG"), "icon");
    {
        const LowerLimit fileSize(RLIMIT_FSIZE, 1000);
        EXPECT_EQ(save("a"), success);
    }
    EXPECT_EQ(unpacked(pathOf("a.tar.gz")).at("kCustomIcon-IMG"), "icon");
}
