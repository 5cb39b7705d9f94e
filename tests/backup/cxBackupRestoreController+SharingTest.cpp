#include "BackupPageFixture.h"
#include "Device.h"
#include "system/UrlOpener.h"
#include "views/UIViewPeer.h"

namespace {

class cxBackupRestoreControllerSharingTest : public BackupPageFixture {
protected:
    explicit cxBackupRestoreControllerSharingTest(const Screen::Options& options = {})
        : BackupPageFixture(options) {
        show();
        makeBackup("My Settings.tar.gz");
    }

    Message openInFilza(const std::string& name) {
        page->openInFilza(name);
        settle();
        return message();
    }

    [[nodiscard]] static UrlOpener& urls() { return Device::current().urls(); }

    const std::string url = "filza://view/var/mobile/Documents/CorvexBackups/My%20Settings.tar.gz";
};

class cxBackupRestoreControllerPadTest : public cxBackupRestoreControllerSharingTest {
protected:
    cxBackupRestoreControllerPadTest() : cxBackupRestoreControllerSharingTest({.idiom = Idiom::Pad}) {}
};

} // namespace

TEST_F(cxBackupRestoreControllerSharingTest, FilzaGetsThePathPercentEncoded) {
    urls().setHandler("filza", UrlOpener::Handler::Works);
    EXPECT_EQ(openInFilza("My Settings.tar.gz"), Message());
    EXPECT_FALSE(isPresenting());
    EXPECT_EQ(urls().take(), Names{url});
    openInFilza("Grüße?#%.tar.gz");
    EXPECT_EQ(urls().take(),
              Names{"filza://view/var/mobile/Documents/CorvexBackups/Gr%C3%BC%C3%9Fe%3F%23%25.tar.gz"});
}

TEST_F(cxBackupRestoreControllerSharingTest, WithoutFilzaItSaysSo) {
    urls().setHandler("filza", UrlOpener::Handler::None);
    EXPECT_EQ(openInFilza("My Settings.tar.gz"), (Message{"Error", "Filza is not installed"}));
    EXPECT_EQ(urls().take(), Names());
}

TEST_F(cxBackupRestoreControllerSharingTest, WhenFilzaDoesNotOpenItSaysSo) {
    urls().setHandler("filza", UrlOpener::Handler::Fails);
    EXPECT_EQ(openInFilza("My Settings.tar.gz"), (Message{"Error", "Could not open Filza"}));
}

TEST_F(cxBackupRestoreControllerSharingTest, ABackupIsSharedAsItsFile) {
    page->shareBackup("My Settings.tar.gz");
    settle();
    EXPECT_EQ(presented().kind(), "share");
    EXPECT_EQ(details().urls, Names{"file:///var/mobile/Documents/CorvexBackups/My%20Settings.tar.gz"});
    EXPECT_EQ(device.log().take(), Log{"Sharing backup: My Settings.tar.gz"});
}

TEST_F(cxBackupRestoreControllerSharingTest, WhatHasGoneIsNotShared) {
    for (const auto* const name : {"gone.tar.gz", ""}) {
        page->shareBackup(name);
        settle();
        EXPECT_EQ(message(), (Message{"Error", "Backup file not found"}));
        tapOn("OK");
    }
    EXPECT_EQ(device.log().take(), (Log{"Sharing backup: gone.tar.gz", "Sharing backup: "}));
}

TEST_F(cxBackupRestoreControllerPadTest, OnATabletThePopoverPointsAtTheMiddleOfThePage) {
    page->shareBackup("My Settings.tar.gz");
    settle();
    ASSERT_TRUE(isPresenting());
    EXPECT_EQ(presented().kind(), "share");
    const auto size = page->view().bounds().size;
    EXPECT_EQ(details().popoverSource,
              page->view().peer().convertToScreen(CGRectMake(size.width / 2, size.height / 2, 0, 0)));
    EXPECT_EQ(device.log().take(), Log{"Sharing backup: My Settings.tar.gz"});
}
