#include "UIKit/UIDocumentPickerViewController.h"

#include "DesktopColor.h"
#include "Foundation/NSFileManager.h"
#include "ObjectiveC/Class.h"
#include "ObjectiveC/Weak.h"
#include "documents/DocumentsFixture.h"
#include "tables/UITableViewCellPeer.h"
#include "views/UILabelPeer.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace {

using Texts = std::vector<std::string>;

class PickerDelegate final : public NSObject {
public:
    void didPickDocumentsAtURLs(const Ref<UIDocumentPickerViewController>& from,
                                const std::vector<Ref<NSURL>>& urls) {
        picker = from;
        pickerWasGone = from->view().peer().window() == nullptr;
        for (const auto& url : urls)
            paths.push_back(url->path());
    }

    Ref<UIDocumentPickerViewController> picker;
    Texts paths;
    bool pickerWasGone = false;
};

const Class delegateClass = Class::define<PickerDelegate>(
    "PickerDelegate",
    {method<"documentPicker:didPickDocumentsAtURLs:", &PickerDelegate::didPickDocumentsAtURLs>()});

class UIDocumentPickerTest : public DocumentsFixture {
protected:
    explicit UIDocumentPickerTest(const Screen::Options& options = {},
                                  const TestDevice::Settings& settings = {})
        : DocumentsFixture(options, settings) {}

    void open(const Texts& types = {"public.data"}) {
        picker = UIDocumentPickerViewController::initWithDocumentTypes(types, UIDocumentPickerMode::Import);
        picker->setDelegate(*delegate);
        present(picker);
    }

    /// The only path that the delegate was told.
    [[nodiscard]] std::string picked() const {
        EXPECT_EQ(delegate->paths.size(), 1U);
        return delegate->paths.empty() ? "" : delegate->paths.front();
    }

    [[nodiscard]] bool hasInbox() const {
        return std::filesystem::exists(device.hostPath(Device::temporaryPath) +
                                       "/com.apple.Preferences-Inbox");
    }

    /// The row that has that name.
    [[nodiscard]] const UITableViewCellPeer& row(const std::string& name) {
        for (const auto* view = viewOf(name); view != nullptr; view = view->peer().superview()) {
            if (const auto* const cell = dynamic_cast<const UITableViewCell*>(view))
                return peerOf<UITableViewCellPeer>(*cell);
        }
        throw std::logic_error("no row is called " + name);
    }

    [[nodiscard]] bool isSelected(const std::string& name) { return row(name).isSelected(); }

    [[nodiscard]] ColorComponents colorOf(const std::string& name) {
        return DesktopColor::resolve(peerOf<UILabelPeer>(row(name).textLabel()).textColor(), Traits());
    }

    Ref<PickerDelegate> delegate = make<PickerDelegate>();
    Ref<UIDocumentPickerViewController> picker;

private:
    [[nodiscard]] const UIView* viewOf(const std::string& label) {
        const auto elements = AccessibilityElement::allIn(top()->shownView());
        return std::ranges::find(elements, label, &AccessibilityElement::label)->view.get();
    }
};

class GermanDocumentPickerTest : public UIDocumentPickerTest {
protected:
    GermanDocumentPickerTest() : UIDocumentPickerTest({}, {.locale = "de_DE"}) {}
};

class UIDocumentPickerPadTest : public UIDocumentPickerTest {
protected:
    UIDocumentPickerPadTest() : UIDocumentPickerTest({.idiom = Idiom::Pad, .scale = 2, .size = {}}) {}
};

std::string documents(const std::string& name) {
    return std::string(Device::documentsPath) + "/" + name;
}

} // namespace

TEST_F(GermanDocumentPickerTest, TheUsersFolderIsCalledInHisLanguageAndFoldersInItAsTheyAre) {
    device.write(documents("Image/a.gz"), "1");
    open();
    EXPECT_EQ(labels(), (Texts{"Abbrechen", "Dokumente", "Image"}));
    press("Image");
    settle();
    EXPECT_EQ(top()->title(), "Image");
}

TEST_F(UIDocumentPickerTest, ShowsWhatIsInTheDocumentsFolderByName) {
    device.write(documents("b10.gz"), "1");
    device.write(documents("B9.gz"), "1");
    device.write(documents("a/inner.gz"), "1");
    device.write(documents(".hidden"), "1");
    std::filesystem::create_symlink("b10.gz", device.hostPath(documents("link.gz")));
    open();
    EXPECT_EQ(kind(), "documentPicker");
    EXPECT_EQ(labels(), (Texts{"Cancel", "Documents", "a", "B9.gz", "b10.gz"}));
    const auto items = top()->details()->items;
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].title, "a");
    EXPECT_EQ(items[0].symbol, "folder.fill");
    EXPECT_EQ(items[1].symbol, "doc.fill");
}

TEST_F(UIDocumentPickerTest, TellsDateAndSizeOfAFile) {
    device.write(documents("a.gz"), std::string(12'345, 'x'));
    open();
    const auto elements = AccessibilityElement::allIn(top()->shownView());
    EXPECT_TRUE(elements.back().value.ends_with(" – 12 KB")) << elements.back().value;
    EXPECT_TRUE(elements.back().value.contains('/')) << elements.back().value;
}

TEST_F(UIDocumentPickerTest, AFileThatIsTappedIsHandedOverAsACopyOnceThePickerIsGone) {
    device.write(documents("ä b.tar.gz"), "content");
    open();
    press("ä b.tar.gz");
    EXPECT_EQ(kind(), "");
    EXPECT_TRUE(delegate->pickerWasGone);
    EXPECT_EQ(delegate->picker, picker);
    EXPECT_TRUE(picked().starts_with("/var/mobile/tmp/com.apple.Preferences-Inbox/")) << picked();
    EXPECT_TRUE(picked().ends_with("/ä b.tar.gz"));
    EXPECT_EQ(device.read(picked()), "content");
    EXPECT_EQ(device.read(documents("ä b.tar.gz")), "content");
}

TEST_F(UIDocumentPickerTest, TheCopyIsMadeAtTheDevicesTime) {
    device.write(documents("a.gz"), "content");
    open();
    press("a.gz");
    const auto attributes = NSFileManager::defaultManager().attributesOfItemAtPath(picked());
    ASSERT_TRUE(attributes);
    EXPECT_NEAR(attributes->fileCreationDate.timeIntervalSinceReferenceDate,
                device.clock().date().timeIntervalSinceReferenceDate, 60);
}

TEST_F(UIDocumentPickerTest, FoldersAreGoneIntoAndLeft) {
    device.write(documents("a/b/c.gz"), "deep");
    open();
    press("a");
    press("b");
    EXPECT_EQ(top()->title(), "b");
    EXPECT_EQ(top()->details()->items.size(), 1U);
    press("a"); // the way back
    EXPECT_EQ(top()->title(), "a");
    EXPECT_FALSE(isSelected("b"));
    press("b");
    press("c.gz");
    EXPECT_EQ(device.read(picked()), "deep");
}

TEST_F(UIDocumentPickerTest, NamesOfFilesAndFoldersBeginAtOnePlace) {
    device.write(documents("a.gz"), "content");
    device.write(documents("b/c.gz"), "deep");
    open();
    EXPECT_EQ(row("a.gz").textLabel().frame().origin.x, 16 + 29 + 16);
    EXPECT_EQ(row("b").textLabel().frame().origin.x, 16 + 29 + 16);
}

TEST_F(UIDocumentPickerTest, StartsWhereItIsTold) {
    device.write("/var/mobile/Other/x.gz", "x");
    picker =
        UIDocumentPickerViewController::initWithDocumentTypes({"public.data"}, UIDocumentPickerMode::Import);
    picker->setDirectoryURL(NSURL::fileURLWithPath("/var/mobile/Other"));
    present(picker);
    EXPECT_EQ(labels(), (Texts{"Cancel", "Other", "x.gz"}));
}

TEST_F(UIDocumentPickerTest, AnEmptyFolderSaysSo) {
    open();
    EXPECT_EQ(labels(), (Texts{"Cancel", "Documents", "This folder is empty."}));
}

TEST_F(UIDocumentPickerTest, OnlyFilesOfTheTypesCanBeChosen) {
    device.write(documents("a.txt"), "text");
    device.write(documents("b.tar.GZ"), "zipped");
    open({"org.gnu.gnu-zip-tar"});
    EXPECT_FALSE(top()->details()->items[0].tappable);
    EXPECT_TRUE(top()->details()->items[1].tappable);
    EXPECT_EQ(colorOf("a.txt").alpha, 0.3) << "as fainter texts have";
    EXPECT_EQ(colorOf("b.tar.GZ").alpha, 1);
    press("a.txt");
    EXPECT_EQ(kind(), "documentPicker");
    EXPECT_FALSE(pick({hostFile("a.txt")}));
    EXPECT_EQ(complaint(), "“a.txt” is not of a kind that can be chosen.");
    EXPECT_TRUE(delegate->paths.empty());
    press("OK");
    press("b.tar.GZ");
    EXPECT_EQ(device.read(picked()), "zipped");
}

TEST_F(UIDocumentPickerTest, CancelTellsNobody) {
    open();
    press("Cancel");
    EXPECT_EQ(kind(), "");
    open();
    top()->filePicker()->cancelPicking();
    settle();
    EXPECT_EQ(kind(), "");
    open();
    top()->dismissPresented();
    settle();
    EXPECT_EQ(kind(), "");
    EXPECT_TRUE(delegate->paths.empty());
    EXPECT_FALSE(delegate->picker);
}

TEST_F(UIDocumentPickerTest, AFileOfTheHostIsBroughtInUnderItsName) {
    open();
    EXPECT_TRUE(pick({hostFile("Größe %20 \"x\".tar.gz", "from outside")}));
    EXPECT_EQ(kind(), "");
    EXPECT_TRUE(picked().ends_with("/Größe %20 \"x\".tar.gz")) << picked();
    EXPECT_EQ(device.read(picked()), "from outside");
}

TEST_F(UIDocumentPickerTest, FilesOfOneNameHaveCopiesOfTheirOwn) {
    open();
    ASSERT_TRUE(pick({hostFile("a.gz", "first")}));
    open();
    ASSERT_TRUE(pick({hostFile("a.gz", "second")}));
    ASSERT_EQ(delegate->paths.size(), 2U);
    EXPECT_EQ(device.read(delegate->paths[0]), "first");
    EXPECT_EQ(device.read(delegate->paths[1]), "second");
}

TEST_F(UIDocumentPickerTest, WhatCannotBeReadIsRefusedAndThePickerStays) {
    open();
    for (const auto& [path, reason] : std::vector<std::pair<std::string, std::string>>{
             {host.path() + "/none.gz", "“none.gz” could not be opened: No such file or directory."},
             {host.path(), "could not be opened: Is a directory."},
             {"/dev/null", "“null” could not be opened: Operation not supported."}}) {
        const auto outcome = pick({path});
        ASSERT_FALSE(outcome) << path;
        EXPECT_TRUE(outcome.error().ends_with(reason)) << outcome.error();
        EXPECT_EQ(complaint(), outcome.error());
        press("OK");
        EXPECT_EQ(kind(), "documentPicker");
    }
    EXPECT_TRUE(delegate->paths.empty());
    EXPECT_FALSE(hasInbox());
}

TEST_F(UIDocumentPickerTest, ACopyThatFailsLeavesNothingInTheInbox) {
    std::filesystem::create_directories(device.hostPath(Device::temporaryPath));
    device.write(std::string(Device::temporaryPath) + "/com.apple.Preferences-Inbox", "in the way");
    open();
    EXPECT_FALSE(pick({hostFile("a.gz")}));
    EXPECT_EQ(kind(), "alert");
    EXPECT_TRUE(delegate->paths.empty());
}

TEST_F(UIDocumentPickerTest, AFileThatHasGoneMeanwhileIsRefused) {
    device.write(documents("a.gz"), "content");
    open();
    std::filesystem::remove(device.hostPath(documents("a.gz")));
    press("a.gz");
    EXPECT_EQ(complaint(), "“a.gz” could not be opened: No such file or directory.");
    press("OK");
    EXPECT_FALSE(isSelected("a.gz"));
}

TEST_F(UIDocumentPickerTest, SeveralFilesNeedToBeAllowed) {
    open();
    const Texts two{hostFile("a.gz", "a"), hostFile("b.gz", "b")};
    EXPECT_EQ(pick(two), std::unexpected("One file is wanted."));
    press("OK");
    picker->setAllowsMultipleSelection(true);
    EXPECT_TRUE(pick(two));
    ASSERT_EQ(delegate->paths.size(), 2U);
    EXPECT_EQ(device.read(delegate->paths[0]) + device.read(delegate->paths[1]), "ab");
}

TEST_F(UIDocumentPickerTest, OfSeveralFilesAllAreTakenOrNone) {
    open();
    picker->setAllowsMultipleSelection(true);
    EXPECT_FALSE(pick({hostFile("a.gz"), host.path() + "/none.gz"}));
    EXPECT_TRUE(delegate->paths.empty());
    EXPECT_TRUE(
        std::filesystem::is_empty(device.hostPath(Device::temporaryPath) + "/com.apple.Preferences-Inbox"));
}

TEST_F(UIDocumentPickerTest, ADelegateThatIsGoneOrHasNoSuchMethodIsToldNothing) {
    open();
    delegate = nullptr;
    EXPECT_TRUE(pick({hostFile("a.gz")}));
    EXPECT_EQ(kind(), "");
    const auto other = make<UIView>();
    picker =
        UIDocumentPickerViewController::initWithDocumentTypes({"public.data"}, UIDocumentPickerMode::Import);
    picker->setDelegate(*other);
    present(picker);
    EXPECT_TRUE(pick({hostFile("a.gz")}));
    EXPECT_TRUE(device.log().take().empty());
}

TEST_F(UIDocumentPickerTest, TheHostsDialogIsOpenedWhereThereIsOne) {
    open();
    EXPECT_EQ(std::ranges::count(labels(), HostFileDialog::buttonTitle), 0);
    press("Cancel");
    auto& dialog = makeDialog();
    open();
    press(HostFileDialog::buttonTitle);
    EXPECT_EQ(dialog.filesAsked, 1);
    EXPECT_EQ(kind(), "documentPicker");
    dialog.answer(hostFile("a.gz", "chosen"));
    settle();
    EXPECT_EQ(kind(), "");
    EXPECT_EQ(device.read(picked()), "chosen");
}

TEST_F(UIDocumentPickerTest, WhatTheDialogAnswersTooLateIsLeft) {
    auto& dialog = makeDialog();
    open();
    press(HostFileDialog::buttonTitle);
    press("Cancel");
    dialog.answer(hostFile("a.gz"));
    settle();
    picker = nullptr;
    dialog.answer(hostFile("a.gz"));
    settle();
    EXPECT_TRUE(delegate->paths.empty());
    EXPECT_FALSE(hasInbox());
}

TEST_F(UIDocumentPickerTest, NothingOfThePickerIsLeftAlive) {
    device.write(documents("a/b.gz"), "content");
    open();
    press("a");
    const Weak<UIViewController> watched(picker);
    picker = nullptr;
    press("b.gz");
    delegate->picker = nullptr;
    settle();
    EXPECT_FALSE(watched.strong());
}

TEST_F(UIDocumentPickerPadTest, IsAFormSheetThere) {
    picker =
        UIDocumentPickerViewController::initWithDocumentTypes({"public.data"}, UIDocumentPickerMode::Import);
    picker->setModalPresentationStyle(UIModalPresentationStyle::FormSheet);
    present(picker);
    EXPECT_EQ(top()->details()->style, "formSheet");
    EXPECT_EQ(screenFrame(top()->shownView()).size, (CGSize{540, 620}));
}
