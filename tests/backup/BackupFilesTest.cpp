#include "BackupFiles.h"

#include "Foundation/NSFileManager.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

/// \param second when the file was created; less than 0 for a file without a date
BackupFile file(const std::string& name, int second) {
    return {.name = name,
            .creationDate = second < 0 ? std::nullopt : std::optional(NSDate{static_cast<double>(second)})};
}

Names sorted(std::vector<BackupFile> files) {
    sortNewestFirst(files);
    Names names;
    for (const auto& sortedFile : files)
        names.push_back(sortedFile.name);
    return names;
}

} // namespace

TEST(BackupFiles, TheTitleLacksTheLastExtensionAlone) {
    EXPECT_EQ(backupTitle("Backup_20240101-1200.tar.gz"), "Backup_20240101-1200.tar");
    EXPECT_EQ(backupTitle("/folder/My Settings.tar.gz"), "My Settings.tar");
    EXPECT_EQ(backupTitle("a.TAR.GZ"), "a.TAR");
    EXPECT_EQ(backupTitle(""), "");
}

TEST(BackupFiles, ABackupIsNamedTarGzInAnyCase) {
    for (const auto* const name : {"a.tar.gz", "a.TAR.GZ", "a.Tar.gZ", " .tar.gz", "a.b.tar.gz", "..tar.gz"})
        EXPECT_TRUE(isBackupName(name)) << name;
    for (const auto* const name : {"", "a.gz", "a.tar", "a.tgz", "a.tar.gz2", "a.tar.g", "tar.gz",
                                   "a.tar.gz.txt", "atar.gz", "a.tar..gz", ".gz", "notes.txt"})
        EXPECT_FALSE(isBackupName(name)) << name;
}

TEST(BackupFiles, AnythingThatEndsInGzMayBeTakenIn) {
    for (const auto* const extension : {"gz", "GZ", "gZ", "tar.gz", "TAR.GZ"})
        EXPECT_TRUE(isImportable(extension)) << extension;
    for (const auto* const extension : {"", "tar", "tgz", "gz ", "g", "gzip"})
        EXPECT_FALSE(isImportable(extension)) << extension;
}

TEST(BackupFiles, TheNewestComesFirst) {
    EXPECT_EQ(sorted({file("old", 1), file("new", 3), file("middle", 2)}), (Names{"new", "middle", "old"}));
    EXPECT_EQ(sorted({}), Names());
}

TEST(BackupFiles, FilesOfOneDateKeepTheirOrder) {
    EXPECT_EQ(sorted({file("b", 1), file("a", 1), file("c", 1)}), (Names{"b", "a", "c"}));
}

TEST(BackupFiles, AFileWithoutADateCountsAsEqualToItsNeighbours) {
    EXPECT_EQ(sorted({file("old", 1), file("none", -1), file("new", 3)}), (Names{"old", "none", "new"}));
    EXPECT_EQ(sorted({file("none", -1), file("old", 1), file("new", 3)}), (Names{"none", "new", "old"}));
}

TEST(BackupFiles, EachStagingFolderHasANameOfItsOwnInTheTemporaryFolder) {
    const TestDevice device;
    const auto first = newStagingPath();
    const auto second = newStagingPath();
    EXPECT_NE(first, second);
    EXPECT_EQ(first.size(), std::string("/var/mobile/tmp/").size() + 36);
    EXPECT_TRUE(first.starts_with("/var/mobile/tmp/"));
    EXPECT_FALSE(NSFileManager::defaultManager().fileExistsAtPath(first));
}

TEST(BackupFiles, TheImagesAreBelowTheJailbreaksRoot) {
    const TestDevice device;
    EXPECT_EQ(imageFolder(), "/var/jb/var/mobile/Library/Preferences/com.orvel.corvexprefs");
    EXPECT_EQ(imageFile("kCustomIcon-IMG"),
              "/var/jb/var/mobile/Library/Preferences/com.orvel.corvexprefs/kCustomIcon-IMG");
}

TEST(BackupFiles, AnErrorIsDescribedAndNoneIsNot) {
    EXPECT_EQ(
        descriptionOf(NSError::errorWithDomain("d", 1, {{std::string(NSLocalizedDescriptionKey), "Why"}})),
        "Why");
    EXPECT_EQ(descriptionOf(nullptr), std::nullopt);
}
