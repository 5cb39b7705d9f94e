#include "BackupPageFixture.h"
#include "Foundation/NSFileManager.h"
#include "ObjectiveC/Class.h"
#include "ObjectiveC/Weak.h"
#include "controllers/UIViewControllerPeer.h"

namespace {

class cxBackupRestoreControllerTest : public BackupPageFixture {
protected:
    [[nodiscard]] MessageValue ask(std::string_view selector) { return page->performSelector(selector); }
};

PropertyList textsIn(std::initializer_list<const char*> texts) {
    return PropertyList::Array(texts.begin(), texts.end());
}

} // namespace

TEST_F(cxBackupRestoreControllerTest, IsMadeByItsName) {
    const auto* const named = NSClassFromString("cxBackupRestoreController");
    ASSERT_NE(named, nullptr);
    EXPECT_EQ(named->superclass()->name(), "PSListController");
    EXPECT_TRUE(dynamicCast<cxBackupRestoreController>(named->create()));
}

TEST_F(cxBackupRestoreControllerTest, ItsFolderIsInTheDocumentsAndMadeWithThePage) {
    EXPECT_EQ(page->backupsPath(), backupsFolder);
    EXPECT_TRUE(NSFileManager::defaultManager().fileExistsAtPath(backupsFolder));
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxBackupRestoreControllerTest, TheFoldersAboveItAreMadeToo) {
    EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath("/var/mobile/Documents"));
    page = make<cxBackupRestoreController>();
    EXPECT_TRUE(NSFileManager::defaultManager().fileExistsAtPath(backupsFolder));
}

TEST_F(cxBackupRestoreControllerTest, AFolderThatIsThereIsKeptWithWhatIsInIt) {
    makeFile("a.tar.gz");
    page = make<cxBackupRestoreController>();
    EXPECT_EQ(namesIn(backupsFolder), Names{"a.tar.gz"});
}

TEST_F(cxBackupRestoreControllerTest, AFolderThatCannotBeMadeIsNoFailureYet) {
    EXPECT_TRUE(NSFileManager::defaultManager().removeItemAtPath("/var/mobile/Documents"));
    device.write("/var/mobile/Documents", "a file");
    page = make<cxBackupRestoreController>();
    ASSERT_TRUE(page);
    EXPECT_EQ(page->backupsPath(), backupsFolder);
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxBackupRestoreControllerTest, ShowsDatesShortly) {
    constexpr NSDate date{815973120}; // 2026-11-10 03:12
    EXPECT_EQ(page->dateFormatter()->stringFromDate(date), "11/10/26, 3:12\u202fAM");
}

TEST_F(cxBackupRestoreControllerTest, LoadsItsRowsOnce) {
    const auto first = page->specifiers();
    ASSERT_EQ(first.size(), 1U);
    EXPECT_EQ(first.front()->propertyForKey("id"), PropertyList("createBackup"));
    device.write(std::string(bundlePath) + "/BackupRestore.plist", "no list");
    EXPECT_EQ(page->specifiers(), first);
}

TEST_F(cxBackupRestoreControllerTest, ARowSendsThePageItsMessage) {
    show();
    tapOn("Create");
    ASSERT_TRUE(isPresenting());
    EXPECT_EQ(presented().title(), "Create Backup");
}

TEST_F(cxBackupRestoreControllerTest, AnswersForItsPropertiesByName) {
    EXPECT_EQ(ask("backupsPath"), MessageValue(PropertyList(backupsFolder)));
    page->performSelector("setBackupsPath:", {PropertyList("/elsewhere")});
    EXPECT_EQ(page->backupsPath(), "/elsewhere");
    page->performSelector("setBackupsPath:");
    EXPECT_EQ(ask("backupsPath"), MessageValue());

    const Ref<NSObject> formatter = NSDateFormatter::dateFormatter();
    page->performSelector("setDateFormatter:", {formatter});
    EXPECT_EQ(ask("dateFormatter"), MessageValue(formatter));

    EXPECT_EQ(ask("currentBackupsList"), MessageValue()) << "nothing was listed yet";
    page->performSelector("setCurrentBackupsList:", {textsIn({"b", "a"})});
    EXPECT_EQ(ask("currentBackupsList"), MessageValue(textsIn({"b", "a"})));
    page->performSelector("setCurrentBackupsList:", {textsIn({})});
    EXPECT_EQ(ask("currentBackupsList"), MessageValue(textsIn({}))) << "an empty list is one";
}

TEST_F(cxBackupRestoreControllerTest, EndsWhenNobodyNeedsIt) {
    show();
    page->createBackup();
    settle();
    tapOn("Cancel");
    const Weak<cxBackupRestoreController> watched = page;
    page = nullptr;
    window->setRootViewController(nullptr);
    navigation = nullptr;
    settle();
    EXPECT_FALSE(watched.strong());
}

TEST_F(cxBackupRestoreControllerTest, EndsUnderItsSheetAndTheSheetWithIt) {
    makeBackup("a.tar.gz");
    show();
    page->showBackupList();
    settle();
    const Weak<cxBackupRestoreController> watched = page;
    const Weak<OBWelcomeController> watchedSheet = sheet();
    page = nullptr;
    window->setRootViewController(nullptr);
    navigation = nullptr;
    settle();
    EXPECT_FALSE(watched.strong());
    EXPECT_FALSE(watchedSheet.strong());
    EXPECT_TRUE(screen.presentations().all().empty());
}
