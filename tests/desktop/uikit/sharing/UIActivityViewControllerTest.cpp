#include "UIKit/UIActivityViewController.h"

#include "ObjectiveC/Weak.h"
#include "RectGeometry.h"
#include "documents/DocumentsFixture.h"
#include "sharing/UIActivityViewControllerPeer.h"
#include "system/UrlOpener.h"
#include "views/UIViewPeer.h"

#include <sys/stat.h>

#include <filesystem>

namespace {

using Texts = std::vector<std::string>;

constexpr auto path = "/var/mobile/Documents/my backup.tar.gz";
constexpr auto name = "my backup.tar.gz";

class UIActivityViewControllerTest : public DocumentsFixture {
protected:
    explicit UIActivityViewControllerTest(const Screen::Options& options = {}) : DocumentsFixture(options) {
        device.write(path, "archive");
    }

    void share(const std::string& file = path) {
        sheet = UIActivityViewController::initWithActivityItems({NSURL::fileURLWithPath(file)});
        present(sheet);
    }

    [[nodiscard]] std::string hostUrl() const {
        return "file://" + std::filesystem::canonical(device.hostPath("/")).string() +
               "/var/mobile/Documents/my%20backup.tar.gz";
    }

    Ref<UIActivityViewController> sheet;
};

class UIActivityViewControllerPadTest : public UIActivityViewControllerTest {
protected:
    UIActivityViewControllerPadTest()
        : UIActivityViewControllerTest({.idiom = Idiom::Pad, .scale = 2, .size = {}}) {}

    void sharePointingAt(const CGRect& source) {
        sheet = UIActivityViewController::initWithActivityItems({NSURL::fileURLWithPath(path)});
        sheet->popoverPresentationController()->setSourceView(page->view());
        sheet->popoverPresentationController()->setSourceRect(source);
        present(sheet);
    }
};

} // namespace

TEST_F(UIActivityViewControllerTest, ShowsTheFileAndWhatCanBeDoneWithIt) {
    share();
    EXPECT_EQ(kind(), "share");
    EXPECT_EQ(top()->title(), name);
    const auto details = top()->details();
    EXPECT_EQ(details->urls, Texts{"file:///var/mobile/Documents/my%20backup.tar.gz"});
    EXPECT_EQ(details->detail, "7 bytes");
    EXPECT_EQ(details->controllerClass, "UIActivityViewController");
    EXPECT_FALSE(details->popoverSource);
    EXPECT_EQ(labels(), (Texts{name, "7 bytes", "Close", "Copy", "Save to Folder…", "Open With…"}));
    ASSERT_EQ(details->items.size(), 3U);
    EXPECT_EQ(details->items[1].title, "Save to Folder…");
    EXPECT_TRUE(details->items[1].tappable);
}

TEST_F(UIActivityViewControllerTest, IsACardAtTheLowerEdgeThatMovesNothingAside) {
    share();
    const auto card = screenFrame(top()->shownView());
    EXPECT_EQ(CGRectGetMaxY(card), 844);
    EXPECT_GT(card.origin.y, 422);
    EXPECT_EQ(screenFrame(page->view()), screen.bounds());
    const auto last = screenFrame(*AccessibilityElement::allIn(top()->shownView()).back().view);
    EXPECT_LE(CGRectGetMaxY(last), 844 - 34);
}

TEST_F(UIActivityViewControllerTest, ClosesByItsButtonByATapBesideItAndByADrag) {
    share();
    press("Close");
    EXPECT_EQ(kind(), "");
    share();
    tap({195, 200});
    settle();
    EXPECT_EQ(kind(), "");
    share();
    const auto top = screenFrame(this->top()->shownView()).origin;
    drag({195, top.y + 20}, {195, 840});
    up({195, 840});
    settle();
    EXPECT_EQ(kind(), "");
}

TEST_F(UIActivityViewControllerTest, CopyGivesTheClipboardTheHostsFile) {
    share();
    press("Copy");
    EXPECT_EQ(kind(), "");
    EXPECT_EQ(screen.clipboard().text(), hostUrl());
}

TEST_F(UIActivityViewControllerTest, OpenWithHasTheHostOpenTheFile) {
    Device::current().urls().setHandler("file", UrlOpener::Handler::Works);
    share();
    press("Open With…");
    EXPECT_EQ(kind(), "");
    EXPECT_EQ(Device::current().urls().take(), Texts{hostUrl()});
}

TEST_F(UIActivityViewControllerTest, WithoutAnApplicationOpenWithSaysSoAndStays) {
    share();
    press("Open With…");
    EXPECT_EQ(complaint(), "No application opened it.");
    press("OK");
    EXPECT_EQ(kind(), "share");
}

TEST_F(UIActivityViewControllerTest, AFolderThatIsPickedGetsACopy) {
    share();
    EXPECT_TRUE(pick({host.path()}));
    EXPECT_EQ(kind(), "");
    EXPECT_EQ(readHost(host.path() + "/" + name), "archive");
    EXPECT_EQ(device.read(path), "archive");
}

TEST_F(UIActivityViewControllerTest, TheHostsDialogNamesTheFolder) {
    auto& dialog = makeDialog();
    share();
    press("Save to Folder…");
    EXPECT_EQ(dialog.foldersAsked, 1);
    EXPECT_EQ(kind(), "share");
    dialog.answer(host.path());
    settle();
    EXPECT_EQ(kind(), "");
    EXPECT_EQ(readHost(host.path() + "/" + name), "archive");
}

TEST_F(UIActivityViewControllerTest, WhatTheDialogAnswersTooLateIsLeft) {
    auto& dialog = makeDialog();
    share();
    press("Save to Folder…");
    press("Close");
    dialog.answer(host.path());
    sheet = nullptr;
    settle();
    dialog.answer(host.path());
    EXPECT_TRUE(std::filesystem::is_empty(host.path()));
}

TEST_F(UIActivityViewControllerTest, WithoutADialogSaveOnlyLogs) {
    share();
    press("Save to Folder…");
    EXPECT_EQ(kind(), "share");
    EXPECT_EQ(device.log().take().size(), 1U);
}

TEST_F(UIActivityViewControllerTest, WhatCannotBeSavedIsToldAndNothingIsLost) {
    share();
    const auto occupied = hostFile(name, "older");
    EXPECT_EQ(pick({host.path()}), std::unexpected("“my backup.tar.gz”: File exists."));
    EXPECT_EQ(complaint(), "“my backup.tar.gz”: File exists.");
    EXPECT_EQ(readHost(occupied), "older");
    press("OK");
    for (const auto& wrong :
         {Texts{host.path() + "/none"}, Texts{occupied}, Texts{host.path(), host.path()}}) {
        EXPECT_FALSE(pick(wrong));
        press("OK");
        EXPECT_EQ(kind(), "share");
    }
    EXPECT_EQ(device.read(path), "archive");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(host.path()), {}), 1);
}

TEST_F(UIActivityViewControllerTest, AFileThatHasGoneIsToldByEveryActivity) {
    Device::current().urls().setHandler("file", UrlOpener::Handler::Works);
    share();
    std::filesystem::remove(device.hostPath(path));
    for (const auto* const activity : {"Copy", "Open With…"}) {
        press(activity);
        EXPECT_EQ(complaint(), "“my backup.tar.gz”: No such file or directory.");
        press("OK");
    }
    EXPECT_FALSE(pick({host.path()}));
    EXPECT_EQ(screen.clipboard().text(), "");
    EXPECT_TRUE(Device::current().urls().take().empty());
    EXPECT_TRUE(std::filesystem::is_empty(host.path()));
}

TEST_F(UIActivityViewControllerTest, ALinkLeadsNowhereOutsideTheDevice) {
    std::filesystem::create_symlink(hostFile("secret", "outside"), device.hostPath("/var/mobile/link"));
    share("/var/mobile/link");
    press("Copy");
    EXPECT_EQ(kind(), "alert");
    press("OK");
    const TemporaryFolder other;
    EXPECT_FALSE(pick({other.path()}));
    EXPECT_EQ(screen.clipboard().text(), "");
    EXPECT_TRUE(std::filesystem::is_empty(other.path()));
}

TEST_F(UIActivityViewControllerTest, SeveralFilesAreSharedTogether) {
    device.write("/var/mobile/b", "bb");
    sheet = UIActivityViewController::initWithActivityItems(
        {NSURL::fileURLWithPath(path), NSURL::fileURLWithPath("/var/mobile/b")});
    present(sheet);
    EXPECT_EQ(top()->title(), "2 Documents");
    EXPECT_EQ(top()->details()->detail, "9 bytes");
    EXPECT_TRUE(pick({host.path()}));
    EXPECT_EQ(readHost(host.path() + "/b"), "bb");
}

TEST_F(UIActivityViewControllerTest, NothingOfTheSheetIsLeftAlive) {
    share();
    const Weak<UIViewController> watched(sheet);
    sheet = nullptr;
    press("Copy");
    EXPECT_FALSE(watched.strong());
}

TEST_F(UIActivityViewControllerPadTest, IsAPopoverThatPointsToItsSource) {
    sharePointingAt(CGRectMake(410, 590, 0, 0));
    EXPECT_EQ(kind(), "share");
    const auto details = top()->details();
    EXPECT_EQ(details->style, "popover");
    EXPECT_EQ(details->popoverSource, CGRectMake(410, 590, 0, 0));
    EXPECT_EQ(labels(), (Texts{name, "7 bytes", "Copy", "Save to Folder…", "Open With…"}));
    const auto panel = screenFrame(top()->shownView());
    EXPECT_EQ(panel.size.width, 375);
    EXPECT_EQ(CGRectGetMidX(panel), 410);
    EXPECT_EQ(panel.origin.y, 590 + 13);
}

TEST_F(UIActivityViewControllerPadTest, ATapBesideThePopoverClosesItAndOneOnItDoesNot) {
    sharePointingAt(CGRectMake(410, 590, 0, 0));
    const auto panel = screenFrame(top()->shownView());
    tap({CGRectGetMidX(panel), panel.origin.y + 20});
    settle();
    EXPECT_EQ(kind(), "share");
    tap({100, 100});
    settle();
    EXPECT_EQ(kind(), "");
    EXPECT_FALSE(page->presentedViewController());
}

TEST_F(UIActivityViewControllerPadTest, APopoverWithoutASourceIsNotShown) {
    share();
    EXPECT_EQ(kind(), "");
    EXPECT_FALSE(page->presentedViewController());
    const auto lines = device.log().take();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(lines.front().ends_with("in a popover that has no source")) << lines.front();
}

TEST_F(UIActivityViewControllerPadTest, ThePopoverStaysWhenItsSourceGoes) {
    const auto source = make<UIView>();
    source->setFrame(CGRectMake(100, 100, 50, 50));
    page->view().addSubview(source);
    sheet = UIActivityViewController::initWithActivityItems({NSURL::fileURLWithPath(path)});
    {
        auto passing = make<UIView>();
        source->addSubview(passing);
        sheet->popoverPresentationController()->setSourceView(*passing);
        present(sheet);
        passing->peer().removeFromSuperview();
    }
    const auto before = screenFrame(top()->shownView());
    top()->keyboardHeightDidChange();
    EXPECT_EQ(screenFrame(top()->shownView()), before);
    press("Copy");
    EXPECT_EQ(screen.clipboard().text(), hostUrl());
}

TEST_F(UIActivityViewControllerPadTest, OtherControllersHaveNoPopover) {
    EXPECT_FALSE(page->popoverPresentationController());
}

TEST(UIActivityViewControllerTextsTest, AreInTheDevicesLanguage) {
    const TestDevice device({.locale = "de_DE"});
    const Screen screen{Screen::Options{}};
    const auto sheet = UIActivityViewController::initWithActivityItems(
        {NSURL::fileURLWithPath("/a"), NSURL::fileURLWithPath("/b")});
    const auto& peer = peerOf<UIActivityViewControllerPeer>(*sheet);
    EXPECT_EQ(peer.sheetTitle(), "2 Dokumente");
    Texts titles;
    for (const auto& item : peer.sheetItems())
        titles.push_back(item.title);
    EXPECT_EQ(titles, (Texts{"Kopieren", "In Ordner sichern …", "Öffnen mit …"}));
}
