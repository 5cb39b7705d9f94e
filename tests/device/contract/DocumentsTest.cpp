// What choosing, sharing and opening files sends to the frameworks.

#include "Foundation/NSFileManager.h"
#include "Foundation/NSNotificationCenter.h"
#include "Foundation/NSURL.h"
#include "Framework.h"
#include "Instances.h"
#include "Journal.h"
#include "ObjectiveC/Class.h"
#include "UIKit/UIActivityViewController.h"
#include "UIKit/UIApplication.h"
#include "UIKit/UIDevice.h"
#include "UIKit/UIDocumentPickerViewController.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

/// Keeps what it is told, as a page does that is a picker's delegate.
class PickerDelegate final : public NSObject {
public:
    PickerDelegate() = default;

    ~PickerDelegate() override { NSNotificationCenter::defaultCenter().removeObserver(*this); }

    void didPickDocumentsAtURLs(const Ref<UIDocumentPickerViewController>& from,
                                const std::vector<Ref<NSURL>>& urls) {
        picker = from;
        for (const auto& url : urls)
            paths.push_back(url->path());
    }

    void noticed(const Ref<NSObject>& /*notification*/) { ++notices; }

    Ref<UIDocumentPickerViewController> picker;
    Lines paths;
    int notices = 0;
};

const Class delegateClass = Class::define<PickerDelegate>(
    "PickerDelegate",
    {method<"documentPicker:didPickDocumentsAtURLs:", &PickerDelegate::didPickDocumentsAtURLs>(),
     method<"noticed:", &PickerDelegate::noticed>()});

class DocumentsTest : public testing::Test {
protected:
    DocumentsTest() { takeJournal(); }
};

} // namespace

TEST_F(DocumentsTest, AUrlTellsItsParts) {
    const auto file = NSURL::fileURLWithPath("/a b/c.tar.gz");
    EXPECT_EQ(file->path(), "/a b/c.tar.gz");
    EXPECT_EQ(file->lastPathComponent(), "c.tar.gz");
    EXPECT_EQ(file->pathExtension(), "gz");
    EXPECT_EQ(NSURL::URLWithString("filza://view/a%20b")->path(), "/a b");
    EXPECT_FALSE(NSURL::URLWithString("a b"));
}

TEST_F(DocumentsTest, AccessToAUrlIsBegunAndEnded) {
    const auto url = NSURL::fileURLWithPath("/a");
    EXPECT_TRUE(url->startAccessingSecurityScopedResource());
    url->stopAccessingSecurityScopedResource();
    const auto lines = takeJournal();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_TRUE(lines[0].ends_with(" startAccessingSecurityScopedResource] /a")) << lines[0];
    EXPECT_TRUE(lines[1].ends_with(" stopAccessingSecurityScopedResource] /a")) << lines[1];
}

TEST_F(DocumentsTest, TheDocumentsFolderIsAskedForInTheUsersDomain) {
    const auto folders =
        NSFileManager::defaultManager().URLsForDirectory(NSSearchPathDirectory::DocumentDirectory);
    ASSERT_EQ(folders.size(), 1U);
    EXPECT_EQ(folders.front()->path(), "/var/mobile/Documents");
    EXPECT_TRUE(takeJournal().front().ends_with(" URLsForDirectory:inDomains:] 9 1"));
}

TEST_F(DocumentsTest, AUrlIsOpenedWithoutOptions) {
    const auto application = UIApplication::sharedApplication();
    std::vector<bool> told;
    const auto note = [&told](bool isOpened) { told.push_back(isOpened); };
    EXPECT_TRUE(application->canOpenURL(NSURL::URLWithString("works://a")));
    EXPECT_FALSE(application->canOpenURL(NSURL::URLWithString("none://a")));
    application->openURL(NSURL::URLWithString("works://a"), note);
    application->openURL(NSURL::URLWithString("fails://a"), note);
    application->openURL(NSURL::URLWithString("works://b"), {});
    EXPECT_EQ(takeJournal(),
              (Lines{"-[UIApplication canOpenURL:] works://a", "-[UIApplication canOpenURL:] none://a",
                     "-[UIApplication openURL:options:completionHandler:] works://a 0 completion",
                     "-[UIApplication openURL:options:completionHandler:] fails://a 0 completion",
                     "-[UIApplication openURL:options:completionHandler:] works://b 0"}));
    EXPECT_EQ(told, (std::vector{true, false}));
}

TEST_F(DocumentsTest, TheDeviceTellsItsIdiomAndThatItDoes) {
    const auto device = UIDevice::currentDevice();
    EXPECT_TRUE(device->respondsToSelector("userInterfaceIdiom"));
    EXPECT_EQ(device->userInterfaceIdiom(), UIUserInterfaceIdiom::Pad);
    EXPECT_EQ(takeJournal(), Lines{"-[UIDevice userInterfaceIdiom]"});
}

TEST_F(DocumentsTest, AShareSheetIsMadeOfUrlsAloneAndPointsWhereItIsTold) {
    const auto view = make<UIView>();
    takeJournal();
    const auto sheet = UIActivityViewController::initWithActivityItems({NSURL::fileURLWithPath("/a")});
    const auto popover = sheet->popoverPresentationController();
    ASSERT_TRUE(popover);
    popover->setSourceView(*view);
    popover->setSourceRect(CGRectMake(195, 422, 0, 0));
    EXPECT_EQ(
        takeJournal(),
        (Lines{("-[UIActivityViewController initWithActivityItems:applicationActivities:] [file:///a] nil"),
               "-[UIPopoverPresentationController setSourceView:] UIView",
               "-[UIPopoverPresentationController setSourceRect:] {{195, 422}, {0, 0}}"}));
    EXPECT_FALSE(make<UIViewController>()->popoverPresentationController());
}

TEST_F(DocumentsTest, ADocumentPickerIsMadeAndSetUp) {
    const auto delegate = make<PickerDelegate>();
    const auto picker = UIDocumentPickerViewController::initWithDocumentTypes(
        {"public.data", "public.archive"}, UIDocumentPickerMode::Import);
    picker->setDelegate(*delegate);
    picker->setModalPresentationStyle(UIModalPresentationStyle::FormSheet);
    picker->setAllowsMultipleSelection(false);
    picker->setDirectoryURL(NSURL::fileURLWithPath("/var/mobile/Documents"));
    EXPECT_EQ(takeJournal(),
              (Lines{("-[UIDocumentPickerViewController initWithDocumentTypes:inMode:] "
                      "[\"public.data\", \"public.archive\"] 0"),
                     "-[UIDocumentPickerViewController setDelegate:] PickerDelegate",
                     "-[UIDocumentPickerViewController setModalPresentationStyle:] 2",
                     "-[UIDocumentPickerViewController setAllowsMultipleSelection:] 0",
                     "-[UIDocumentPickerViewController setDirectoryURL:] file:///var/mobile/Documents"}));
}

TEST_F(DocumentsTest, TheDelegateIsToldOfWhatIsPicked) {
    const auto delegate = make<PickerDelegate>();
    const auto picker =
        UIDocumentPickerViewController::initWithDocumentTypes({"public.data"}, UIDocumentPickerMode::Import);
    picker->setDelegate(*delegate);
    pickDocument(objectOf(*picker), "/var/mobile/ä.gz");
    EXPECT_EQ(delegate->picker, picker);
    EXPECT_EQ(delegate->paths, Lines{"/var/mobile/ä.gz"});
}

TEST_F(DocumentsTest, APickerKeepsNoDelegateAlive) {
    const auto picker =
        UIDocumentPickerViewController::initWithDocumentTypes({"public.data"}, UIDocumentPickerMode::Import);
    picker->setDelegate(*make<PickerDelegate>());
    EXPECT_EQ(aliveOf("PickerDelegate"), 0);
}

TEST_F(DocumentsTest, AnObserverIsRemovedAlsoAtItsEnd) {
    {
        const auto observer = make<PickerDelegate>();
        observe(objectOf(*observer), "News");
        postNotification("News");
        EXPECT_EQ(observer->notices, 1);
        NSNotificationCenter::defaultCenter().removeObserver(*observer);
        postNotification("News");
        EXPECT_EQ(observer->notices, 1);
        observe(objectOf(*observer), "News");
    }
    postNotification("News");
    EXPECT_EQ(aliveOf("PickerDelegate"), 0);
}
