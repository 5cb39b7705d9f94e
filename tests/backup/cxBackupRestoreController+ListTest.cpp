#include "BackupPageFixture.h"
#include "DesktopColor.h"
#include "Foundation/NSFileManager.h"
#include "ObjectiveC/AttachedValues.h"
#include "StandardErrorListener.h"
#include "touches/DesktopTapGestureRecognizer.h"
#include "views/UIViewPeer.h"

#include <filesystem>

namespace {

using Block = std::function<void()>;

class cxBackupRestoreControllerListTest : public BackupPageFixture {
protected:
    cxBackupRestoreControllerListTest() { show(); }

    void showList() {
        page->showBackupList();
        settle();
    }

    [[nodiscard]] std::vector<Ref<UIView>> items() {
        return page->findBulletedListItemsInView(sheet()->bulletedList());
    }

    Message deleteNow(const std::string& name) {
        page->deleteBackup(name);
        settle();
        return message();
    }

    [[nodiscard]] static ColorComponents shown(const Ref<UIColor>& color) {
        return DesktopColor::resolve(color, Traits());
    }

    const Message none{"Info", "No backups found"};
    const Message deleted{"Success", "Backup deleted successfully"};
};

} // namespace

TEST_F(cxBackupRestoreControllerListTest, WithoutBackupsItSaysSo) {
    showList();
    EXPECT_EQ(message(), none);
    EXPECT_EQ(page->currentBackupsList(), std::nullopt);
    EXPECT_EQ(screen.presentations().all().size(), 1U);
}

TEST_F(cxBackupRestoreControllerListTest, AListingThatFindsNoneLeavesWhatTheLastOneFound) {
    makeBackup("a.tar.gz");
    showList();
    tapOn("Done");
    EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath(std::string(backupsFolder) + "/a.tar.gz"));
    showList();
    EXPECT_EQ(message(), none);
    EXPECT_EQ(page->currentBackupsList(), Names{"a.tar.gz"});
}

TEST_F(cxBackupRestoreControllerListTest, OtherFilesAreNoBackups) {
    for (const auto* const name : {"notes.txt", "a.gz", "a.tgz", "a.tar", "tar.gz"})
        makeFile(name);
    std::filesystem::create_directory(device.hostPath(std::string(backupsFolder) + "/folder"));
    showList();
    EXPECT_EQ(message(), none);
}

TEST_F(cxBackupRestoreControllerListTest, WithoutAFolderThereAreNone) {
    EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath(backupsFolder));
    showList();
    EXPECT_EQ(message(), none);
    tapOn("OK");
    device.write(backupsFolder, "a file");
    showList();
    EXPECT_EQ(message(), none);
    tapOn("OK");
    page->setBackupsPath(std::nullopt);
    showList();
    EXPECT_EQ(message(), none);
}

TEST_F(cxBackupRestoreControllerListTest, TheNewestIsFirst) {
    makeBackup("b.tar.gz");
    makeBackup("c.TAR.GZ");
    makeBackup("a.tar.gz");
    makeFile("notes.txt");
    showList();
    EXPECT_EQ(titlesOfItems(), (Names{"a.tar", "c.TAR", "b.tar"}));
    EXPECT_EQ(page->currentBackupsList(), (Names{"a.tar.gz", "c.TAR.GZ", "b.tar.gz"}));
}

TEST_F(cxBackupRestoreControllerListTest, ABackupThatIsWrittenAnewKeepsItsPlace) {
    makeBackup("old.tar.gz");
    makeBackup("new.tar.gz");
    page->saveBackupWithName("old");
    settle();
    tapOn("OK");
    showList();
    EXPECT_EQ(titlesOfItems(), (Names{"new.tar", "old.tar"})) << "the date is that of the file's creation";
}

TEST_F(cxBackupRestoreControllerListTest, TheSheetTellsWhatItIs) {
    makeBackup("My Settings.tar.gz");
    showList();
    EXPECT_EQ(presented().title(), "Available Backups");
    EXPECT_EQ(details().detail, "Select a backup to manage");
    EXPECT_EQ(details().symbol, "folder.fill");
    EXPECT_EQ(details().style, "formSheet");
    EXPECT_FALSE(details().swipeDismissable);
    EXPECT_FALSE(leftButton());
    ASSERT_TRUE(rightButton());
    EXPECT_EQ(rightButton()->content().title, "Done");
    EXPECT_TRUE(rightButton()->content().emphasised);
    tapOn("Done");
    EXPECT_FALSE(isPresenting());
}

TEST_F(cxBackupRestoreControllerListTest, AnItemTellsTheBackupsDate) {
    makeBackup("a.tar.gz");
    showList();
    const auto date = NSFileManager::defaultManager()
                          .attributesOfItemAtPath(std::string(backupsFolder) + "/a.tar.gz")
                          ->fileCreationDate;
    const auto item = details().items.at(0);
    EXPECT_EQ(item.description, page->dateFormatter()->stringFromDate(date));
    EXPECT_FALSE(item.description.empty());
    EXPECT_EQ(item.symbol, "doc.fill");
    EXPECT_EQ(shown(item.tint), shown(UIColor::systemBlueColor()));
    EXPECT_TRUE(item.tappable);
}

TEST_F(cxBackupRestoreControllerListTest, WithoutAFormatterNoDateIsShown) {
    makeBackup("a.tar.gz");
    page->setDateFormatter(nullptr);
    showList();
    ASSERT_EQ(details().items.size(), 1U);
    EXPECT_EQ(details().items.front().description, "");
}

TEST_F(cxBackupRestoreControllerListTest, EachItemHasItsNumberAndTheNameOfItsBackup) {
    makeBackup("b.tar.gz");
    makeBackup("a.tar.gz");
    showList();
    const auto views = items();
    ASSERT_EQ(views.size(), 2U);
    for (std::size_t index = 0; index < views.size(); ++index) {
        EXPECT_EQ(views[index]->peer().tag(), static_cast<int>(index));
        EXPECT_EQ(attachedValueOf<std::string>(*views[index], "BackupName"),
                  page->currentBackupsList()->at(index));
        EXPECT_EQ(views[index]->peer().gestureRecognizers().size(), 1U);
    }
}

TEST_F(cxBackupRestoreControllerListTest, AManyBackupsListScrollsToTheLastOne) {
    for (auto number = 0; number < 30; ++number)
        device.write(std::string(backupsFolder) + "/" + std::to_string(number) + ".tar.gz", "");
    showList();
    const auto last = titlesOfItems().back();
    tapOn(last);
    EXPECT_EQ(presented().title(), last);
}

TEST_F(cxBackupRestoreControllerListTest, ATappedItemLeadsToItsOptionsOnceTheListHasGone) {
    makeBackup("b.tar.gz");
    makeBackup("a.tar.gz");
    showList();
    tap(*items()[1]);
    advance(std::chrono::milliseconds(100));
    EXPECT_TRUE(screen.presentations().all().empty()) << "the list is still on its way out";
    settle();
    EXPECT_EQ(presented().title(), "b.tar");
    EXPECT_EQ(screen.presentations().all().size(), 1U);
}

TEST_F(cxBackupRestoreControllerListTest, ATapOnAnItemWithoutANameDoesNothing) {
    makeBackup("a.tar.gz");
    showList();
    setAttachedValue(*items()[0], "BackupName", std::monostate(), Retention::Retain);
    tap(*items()[0]);
    settle();
    EXPECT_EQ(presented().title(), "Available Backups");
    page->handleBackupListItemTap(nullptr);
    settle();
    EXPECT_EQ(presented().title(), "Available Backups");
}

TEST_F(cxBackupRestoreControllerListTest, TheOptionsAreFour) {
    page->showOptionsForBackup("folder/My Settings.tar.gz");
    settle();
    EXPECT_EQ(presented().title(), "My Settings.tar");
    EXPECT_EQ(details().detail, "Choose an action for this backup");
    EXPECT_EQ(details().symbol, "doc.fill");
    EXPECT_EQ(details().style, "formSheet");
    EXPECT_FALSE(details().swipeDismissable);

    struct Expected {
        std::string title;
        std::string description;
        std::string symbol;
        Ref<UIColor> tint;
    };

    const std::vector<Expected> expected{
        {"Restore", "Replace current settings with this backup", "arrow.clockwise",
         UIColor::systemBlueColor()},
        {"Share", "Share backup file with others", "square.and.arrow.up", UIColor::systemGreenColor()},
        {"Open in Filza", "View backup contents in Filza", "folder", UIColor::systemOrangeColor()},
        {"Delete", "Remove this backup", "trash", UIColor::systemRedColor()}};
    const auto told = details().items;
    ASSERT_EQ(told.size(), expected.size());
    for (std::size_t index = 0; index < told.size(); ++index) {
        EXPECT_EQ(told[index].title, expected[index].title);
        EXPECT_EQ(told[index].description, expected[index].description);
        EXPECT_EQ(told[index].symbol, expected[index].symbol);
        EXPECT_EQ(shown(told[index].tint), shown(expected[index].tint)) << told[index].title;
        EXPECT_TRUE(told[index].tappable);
        EXPECT_EQ(items()[index]->peer().tag(), static_cast<int>(index));
        EXPECT_TRUE(attachedValueOf<Block>(*items()[index], "BackupAction"));
    }
}

TEST_F(cxBackupRestoreControllerListTest, BackClosesTheOptionsAndDoesNotReopenTheList) {
    makeBackup("a.tar.gz");
    chooseBackup("a.tar");
    EXPECT_EQ(leftButton()->content().title, "Back");
    EXPECT_FALSE(leftButton()->content().emphasised);
    EXPECT_FALSE(rightButton());
    tapOn("Back");
    EXPECT_FALSE(isPresenting());
}

TEST_F(cxBackupRestoreControllerListTest, EveryOptionDoesWhatItSays) {
    makeBackup("a.tar.gz");
    chooseBackup("a.tar");
    tapOn("Restore");
    EXPECT_EQ(presented().title(), "Confirm Restore");
    tapOn("Cancel");
    chooseBackup("a.tar");
    tapOn("Share");
    EXPECT_EQ(presented().kind(), "share");
    page->dismissViewControllerAnimated(false, {});
    chooseBackup("a.tar");
    tapOn("Open in Filza");
    EXPECT_EQ(message(), (Message{"Error", "Filza is not installed"}));
    tapOn("OK");
    chooseBackup("a.tar");
    tapOn("Delete");
    EXPECT_EQ(message(), deleted);
    EXPECT_EQ(namesIn(backupsFolder), Names());
}

TEST_F(cxBackupRestoreControllerListTest, ADeletedBackupIsGoneAndTheOthersAreShown) {
    makeBackup("b.tar.gz");
    makeBackup("a.tar.gz");
    chooseBackup("a.tar");
    tapOn("Delete");
    EXPECT_EQ(message(), deleted);
    EXPECT_EQ(namesIn(backupsFolder), Names{"b.tar.gz"});
    tapOn("OK");
    ASSERT_TRUE(isPresenting());
    EXPECT_EQ(presented().title(), "Available Backups");
    EXPECT_EQ(titlesOfItems(), Names{"b.tar"});
    EXPECT_EQ(page->currentBackupsList(), Names{"b.tar.gz"});
    EXPECT_EQ(device.log().take(), Log{"Deleting backup: a.tar.gz"});
}

TEST_F(cxBackupRestoreControllerListTest, ABackupIsStillThereWhenItsEndIsLogged) {
    makeBackup("a.tar.gz");
    std::vector<Names> then;
    {
        const StandardErrorListener listener([&](std::string_view text) {
            if (text.contains("Deleting backup"))
                then.push_back(namesIn(backupsFolder));
        });
        EXPECT_EQ(deleteNow("a.tar.gz"), deleted);
    }
    EXPECT_EQ(then, std::vector<Names>{Names{"a.tar.gz"}});
}

TEST_F(cxBackupRestoreControllerListTest, AfterTheLastOneTheListDoesNotComeBack) {
    makeBackup("a.tar.gz");
    EXPECT_EQ(deleteNow("a.tar.gz"), deleted);
    tapOn("OK");
    EXPECT_FALSE(isPresenting());
    EXPECT_EQ(namesIn(backupsFolder), Names());
}

TEST_F(cxBackupRestoreControllerListTest, AnyOtherFileBringsTheListBackWhichThenFindsNone) {
    makeBackup("a.tar.gz");
    makeFile("notes.txt");
    EXPECT_EQ(deleteNow("a.tar.gz"), deleted);
    tapOn("OK");
    EXPECT_EQ(message(), none);
}

TEST_F(cxBackupRestoreControllerListTest, WhatCannotBeDeletedIsAnErrorWithTheSystemsText) {
    makeBackup("a.tar.gz");
    EXPECT_EQ(deleteNow("b.tar.gz"), (Message{"Error", "“b.tar.gz” couldn’t be removed."}));
    EXPECT_EQ(namesIn(backupsFolder), Names{"a.tar.gz"});
    EXPECT_EQ(device.log().take(), Log{"Deleting backup: b.tar.gz"});
    tapOn("OK");
    EXPECT_FALSE(isPresenting());
}

TEST_F(cxBackupRestoreControllerListTest, WithoutANameNothingIsDeletedNotEvenTheFolder) {
    makeBackup("a.tar.gz");
    EXPECT_EQ(deleteNow("").first, "Error");
    tapOn("OK");
    page->deleteBackup(std::nullopt);
    settle();
    EXPECT_EQ(message().first, "Error");
    EXPECT_EQ(namesIn(backupsFolder), Names{"a.tar.gz"});
}
