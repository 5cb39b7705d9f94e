// What files are chosen with and shared by, as somebody drives it from outside.

#include "DriverFixture.h"
#include "UIKit/UIActivityViewController.h"
#include "UIKit/UIDocumentPickerViewController.h"

#include <filesystem>
#include <fstream>

namespace {

constexpr auto shared = "/var/mobile/Documents/my backup.tar.gz";

class DocumentCommandsTest : public DriverFixture {
protected:
    explicit DocumentCommandsTest(const Screen::Options& options = {}) : DriverFixture(options) {
        show(page);
        device.write(shared, "archive");
    }

    void present(const Ref<UIViewController>& controller) {
        page->presentViewController(controller, true, {});
        settle();
    }

    void presentPicker() {
        present(UIDocumentPickerViewController::initWithDocumentTypes({"public.data"},
                                                                      UIDocumentPickerMode::Import));
    }

    void presentShare() {
        present(UIActivityViewController::initWithActivityItems({NSURL::fileURLWithPath(shared)}));
    }

    /// What is presented topmost, as `screen` tells it.
    [[nodiscard]] QJsonObject top() const {
        return ask("screen").value("presented").toArray().last().toObject();
    }

    [[nodiscard]] bool isAnythingPresented() const {
        return !ask("screen").value("presented").toArray().isEmpty();
    }

    const Ref<UIViewController> page = make<UIViewController>();
    const TemporaryFolder host;
};

class DocumentCommandsPadTest : public DocumentCommandsTest {
protected:
    DocumentCommandsPadTest() : DocumentCommandsTest({.idiom = Idiom::Pad, .scale = 2, .size = {}}) {}
};

} // namespace

TEST_F(DocumentCommandsTest, ADocumentPickerIsToldOfWithItsFiles) {
    presentPicker();
    const auto picker = top();
    EXPECT_EQ(picker.value("kind"), "documentPicker");
    EXPECT_EQ(picker.value("class"), "UIDocumentPickerViewController");
    EXPECT_EQ(picker.value("title"), "Documents");
    EXPECT_EQ(picker.value("left").toArray().at(0)["title"], "Cancel");
    EXPECT_EQ(picker.value("items").toArray().at(0)["title"], "my backup.tar.gz");
    EXPECT_EQ(picker.value("urls"), QJsonArray());
    EXPECT_TRUE(picker.value("popover").isNull());
}

TEST_F(DocumentCommandsTest, AFileThatIsNotThereIsRefusedAndThePickerStays) {
    presentPicker();
    EXPECT_EQ(refusalOf("pick /nowhere/a.gz"), "“a.gz” could not be opened: No such file or directory.");
    settle();
    EXPECT_EQ(top().value("kind"), "alert");
    EXPECT_EQ(refusalOf("pick /nowhere/a.gz"), "no picker is presented");
    EXPECT_FALSE(ask("tap OK").isEmpty());
    settle();
    EXPECT_EQ(top().value("kind"), "documentPicker");
    EXPECT_TRUE(ask("pick-cancel").isEmpty());
    settle();
    EXPECT_FALSE(isAnythingPresented());
}

TEST_F(DocumentCommandsTest, AFileIsPicked) {
    presentPicker();
    std::ofstream(host.path() + "/a b.gz") << "content";
    EXPECT_TRUE(ask("pick \"" + host.path() + "/a b.gz\"").isEmpty());
    settle();
    EXPECT_FALSE(isAnythingPresented());
}

TEST_F(DocumentCommandsTest, AFolderIsPickedForWhatIsShared) {
    presentShare();
    EXPECT_TRUE(ask("pick " + host.path()).isEmpty());
    settle();
    EXPECT_FALSE(isAnythingPresented());
    EXPECT_TRUE(std::filesystem::exists(host.path() + "/my backup.tar.gz"));
}

TEST_F(DocumentCommandsTest, AShareSheetIsToldOfWithItsUrls) {
    presentShare();
    const auto sheet = top();
    EXPECT_EQ(sheet.value("kind"), "share");
    EXPECT_EQ(sheet.value("class"), "UIActivityViewController");
    EXPECT_EQ(sheet.value("title"), "my backup.tar.gz");
    EXPECT_EQ(sheet.value("detail"), "7 bytes");
    EXPECT_EQ(sheet.value("urls"), QJsonArray{"file:///var/mobile/Documents/my%20backup.tar.gz"});
    EXPECT_TRUE(sheet.value("popover").isNull());
    EXPECT_EQ(sheet.value("swipeDismissable"), true);
}

TEST_F(DocumentCommandsTest, AShareSheetIsSwipedAway) {
    presentShare();
    EXPECT_EQ(ask("swipe-down").value("dismissed"), true);
    settle();
    EXPECT_FALSE(isAnythingPresented());
}

TEST_F(DocumentCommandsTest, OpenWithIsAnUrlThatIsOpened) {
    EXPECT_TRUE(ask("url-handler file works").isEmpty());
    presentShare();
    EXPECT_FALSE(ask("tap \"Open With…\"").isEmpty());
    settle();
    const auto opened = ask("urls").value("events").toArray();
    ASSERT_EQ(opened.size(), 1);
    EXPECT_TRUE(opened[0].toString().endsWith("/var/mobile/Documents/my%20backup.tar.gz"));
}

TEST_F(DocumentCommandsPadTest, APopoverIsToldOfWithItsSource) {
    const auto sheet = UIActivityViewController::initWithActivityItems({NSURL::fileURLWithPath(shared)});
    sheet->popoverPresentationController()->setSourceView(page->view());
    sheet->popoverPresentationController()->setSourceRect(CGRectMake(410, 590, 0, 0));
    present(sheet);
    EXPECT_EQ(top().value("kind"), "share");
    EXPECT_EQ(top().value("style"), "popover");
    EXPECT_EQ(top().value("popover").toObject(), (QJsonObject{{"sourceRect", QJsonArray{410, 590, 0, 0}}}));
    EXPECT_EQ(refusalOf("swipe-down"),
              "a popover is presented: it is no sheet, a touch beside it takes it away");
    EXPECT_TRUE(ask("touch down 100 100").isEmpty());
    EXPECT_TRUE(ask("touch up 100 100").isEmpty());
    settle();
    EXPECT_FALSE(isAnythingPresented());
}
