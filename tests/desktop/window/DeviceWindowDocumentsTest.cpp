// What files are chosen with and shared by, for somebody at the keyboard.

#include "UIKit/UIActivityViewController.h"
#include "UIKit/UIDocumentPickerViewController.h"
#include "WindowFixture.h"
#include "accessibility/AccessibilityElement.h"
#include "system/UrlOpener.h"

#include <set>

namespace {

using Texts = std::set<std::string>;

constexpr auto backup = "/var/mobile/Documents/backup.tar.gz";

class DeviceWindowDocumentsTest : public WindowFixture {
protected:
    DeviceWindowDocumentsTest() {
        show(page);
        device.write(backup, "archive");
    }

    void present(const Ref<UIViewController>& controller) {
        page->presentViewController(controller, true, {});
        settle();
        run();
    }

    [[nodiscard]] std::string focused() {
        const auto view = shown.focusedView();
        for (const auto& element : AccessibilityElement::allIn(*viewInFront())) {
            if (element.view == view)
                return element.label;
        }
        return "";
    }

    /// What Tab comes to in one round.
    [[nodiscard]] Texts stops() {
        Texts stops;
        constexpr int more = 10; // than there are
        for (int i = 0; i < more; ++i) {
            press(Qt::Key_Tab);
            stops.insert(focused());
        }
        return stops;
    }

    void goTo(const std::string& label) {
        for (int i = 0; i < 10 && focused() != label; ++i)
            press(Qt::Key_Tab);
        ASSERT_EQ(focused(), label);
    }

    [[nodiscard]] bool isAnythingPresented() { return screen.presentations().top() != nullptr; }

    const Ref<UIViewController> page = make<UIViewController>();
};

} // namespace

TEST_F(DeviceWindowDocumentsTest, EveryControlOfAShareSheetIsAStopAndEscapeClosesIt) {
    present(UIActivityViewController::initWithActivityItems({NSURL::fileURLWithPath(backup)}));
    EXPECT_EQ(stops(), (Texts{"Close", "Copy", "Save to Folder…", "Open With…"}));
    press(Qt::Key_Escape);
    settle();
    EXPECT_FALSE(isAnythingPresented());
}

TEST_F(DeviceWindowDocumentsTest, AFileIsSharedByTheKeyboardAlone) {
    Device::current().urls().setHandler("file", UrlOpener::Handler::Works);
    present(UIActivityViewController::initWithActivityItems({NSURL::fileURLWithPath(backup)}));
    goTo("Open With…");
    press(Qt::Key_Return);
    settle();
    EXPECT_FALSE(isAnythingPresented());
    EXPECT_EQ(Device::current().urls().take().size(), 1U);
}

TEST_F(DeviceWindowDocumentsTest, AComplaintIsAnsweredByTheKeyboardAlone) {
    Device::current().urls().setHandler("file", UrlOpener::Handler::Fails);
    present(UIActivityViewController::initWithActivityItems({NSURL::fileURLWithPath(backup)}));
    goTo("Open With…");
    press(Qt::Key_Return);
    settle();
    ASSERT_EQ(screen.presentations().top()->kind(), "alert");
    goTo("OK");
    press(Qt::Key_Return);
    settle();
    EXPECT_EQ(screen.presentations().top()->kind(), "share");
}

TEST_F(DeviceWindowDocumentsTest, EveryControlOfADocumentPickerIsAStopAndEscapeClosesIt) {
    present(
        UIDocumentPickerViewController::initWithDocumentTypes({"public.data"}, UIDocumentPickerMode::Import));
    EXPECT_EQ(stops(), (Texts{"Cancel", "backup.tar.gz", HostFileDialog::buttonTitle}));
    press(Qt::Key_Escape);
    settle();
    EXPECT_FALSE(isAnythingPresented());
}

TEST_F(DeviceWindowDocumentsTest, AFileIsChosenByTheKeyboardAlone) {
    present(
        UIDocumentPickerViewController::initWithDocumentTypes({"public.data"}, UIDocumentPickerMode::Import));
    goTo("backup.tar.gz");
    press(Qt::Key_Return);
    settle();
    EXPECT_FALSE(isAnythingPresented());
}
