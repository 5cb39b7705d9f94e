#include "CoreFoundation/DarwinNotifyCenter.h"
#include "Dispatch/MainQueue.h"
#include "Foundation/NSBundle.h"
#include "Foundation/NSDateFormatter.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSFileHandle.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSLog.h"
#include "Foundation/NSString.h"
#include "Foundation/NSUUID.h"
#include "Foundation/NSUserDefaults.h"
#include "Framework.h"
#include "Journal.h"
#include "System/DynamicLibrary.h"
#include "SystemStandIns.h"
#include "UIKit/UIFont.h"
#include "UIKit/UIImage.h"
#include "UIKit/UITextField.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Lines = std::vector<std::string>;

/// A folder of its own for each test, removed with what is in it.
class FileTest : public testing::Test {
protected:
    FileTest() { EXPECT_TRUE(files.createDirectoryAtPath(folder, true)); }

    ~FileTest() override { EXPECT_TRUE(files.removeItemAtPath(folder)); }

    [[nodiscard]] std::string path(std::string_view name) const {
        return stringByAppendingPathComponent(folder, name);
    }

    NSFileManager& files = NSFileManager::defaultManager();
    const std::string folder = stringByAppendingPathComponent(NSTemporaryDirectory(), NSUUIDString());
};

} // namespace

TEST_F(FileTest, FilesAreMadeReadCopiedListedAndRemoved) {
    ASSERT_TRUE(files.createFileAtPath(path("ä.txt"), NSData::dataWithBytes("abc")));
    EXPECT_TRUE(files.fileExistsAtPath(path("ä.txt")));
    EXPECT_EQ(NSData::dataWithContentsOfFile(path("ä.txt")), NSData::dataWithBytes("abc"));
    ASSERT_TRUE(files.copyItemAtPath(path("ä.txt"), path("copy")));
    auto names = files.contentsOfDirectoryAtPath(folder).value();
    std::ranges::sort(names);
    EXPECT_EQ(names, (Lines{"copy", "ä.txt"}));
    ASSERT_TRUE(files.createDirectoryAtPath(path("a/b"), true));
    auto all = files.enumeratorAtPath(folder);
    std::ranges::sort(all);
    EXPECT_EQ(all, (Lines{"a", "a/b", "copy", "ä.txt"}));
    EXPECT_TRUE(files.removeItemAtPath(path("copy")));
    EXPECT_FALSE(files.fileExistsAtPath(path("copy")));
}

TEST_F(FileTest, AttributesAreTold) {
    files.createFileAtPath(path("file"), NSData::dataWithBytes("abcd"));
    const auto attributes = files.attributesOfItemAtPath(path("file")).value();
    EXPECT_EQ(attributes.fileType, NSFileType::Regular);
    EXPECT_EQ(attributes.fileSize, 4U);
    EXPECT_LT(NSDate::date().timeIntervalSinceReferenceDate -
                  attributes.fileCreationDate.timeIntervalSinceReferenceDate,
              60);
    EXPECT_EQ(files.attributesOfItemAtPath(folder)->fileType, NSFileType::Directory);
}

TEST_F(FileTest, WhatFailsSaysWhy) {
    const auto removed = files.removeItemAtPath(path("missing"));
    ASSERT_FALSE(removed);
    EXPECT_FALSE(removed.error()->domain().empty());
    EXPECT_NE(removed.error()->code(), 0);
    EXPECT_FALSE(removed.error()->localizedDescription().empty());
    EXPECT_FALSE(files.contentsOfDirectoryAtPath(path("missing")));
    EXPECT_FALSE(files.attributesOfItemAtPath(path("missing")));
    EXPECT_FALSE(files.copyItemAtPath(path("missing"), path("copy")));
    EXPECT_EQ(NSData::dataWithContentsOfFile(path("missing")), std::nullopt);
}

TEST_F(FileTest, DictionariesAreWrittenAndReadBack) {
    const PropertyList::Dictionary values{{"on", true}, {"count", 3}, {"half", 0.5}, {"text", "größer"}};
    ASSERT_TRUE(writeToFileAtomically(values, path("a.plist")));
    EXPECT_EQ(dictionaryWithContentsOfFile(path("a.plist")), values);
    EXPECT_EQ(dictionaryWithContentsOfFile(path("missing")), std::nullopt);
    EXPECT_FALSE(writeToFileAtomically({{"text", "\xFF"}}, path("b.plist")));
    EXPECT_FALSE(files.fileExistsAtPath(path("b.plist")));
}

TEST_F(FileTest, AHandleWritesUntilItIsClosed) {
    files.createFileAtPath(path("file"), {});
    const auto handle = NSFileHandle::fileHandleForWritingAtPath(path("file"));
    ASSERT_TRUE(handle);
    EXPECT_TRUE(handle->writeData(NSData::dataWithBytes("ab")));
    EXPECT_TRUE(handle->writeData(NSData::dataWithBytes("c")));
    handle->closeFile();
    EXPECT_FALSE(handle->writeData(NSData::dataWithBytes("d")));
    EXPECT_EQ(NSData::dataWithContentsOfFile(path("file")), NSData::dataWithBytes("abc"));
    EXPECT_FALSE(NSFileHandle::fileHandleForWritingAtPath(path("missing")));
}

TEST(FoundationTest, TheMainBundleHasTexts) {
    EXPECT_EQ(NSBundle::mainBundle()->localizedStringForKey("key", "instead", std::nullopt), "instead");
}

TEST(FoundationTest, FoldersAreAskedForByTheirNumbers) {
    EXPECT_EQ(NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory::DocumentDirectory),
              Lines{"/var/mobile/Documents"});
    EXPECT_EQ(takeJournal().size(), 1U);
    EXPECT_TRUE(NSTemporaryDirectory().ends_with("/"));
    EXPECT_FALSE(NSTemporaryDirectory().ends_with("//"));
}

TEST(FoundationTest, PreferencesAreKeptBySuite) {
    const auto preferences = NSUserDefaults::initWithSuiteName("com.example.suite");
    takeJournal();
    preferences->setObject(true, "on");
    preferences->setObject(7, "count");
    EXPECT_EQ(preferences->objectForKey("on"), PropertyList(true));
    EXPECT_EQ(preferences->stringForKey("count"), "7");
    EXPECT_EQ(preferences->objectForKey("other"), std::nullopt);
    EXPECT_EQ(preferences->stringForKey("other"), std::nullopt);
    EXPECT_EQ(preferences->dictionaryRepresentation(),
              (PropertyList::Dictionary{{"count", 7}, {"on", true}}));
    preferences->removeObjectForKey("on");
    EXPECT_TRUE(preferences->synchronize());
    preferences->removePersistentDomainForName("com.example.suite");
    EXPECT_TRUE(preferences->dictionaryRepresentation().empty());
    EXPECT_EQ(takeJournal(),
              (Lines{"-[SuiteDefaults setObject:forKey:] 1 \"on\"",
                     "-[SuiteDefaults setObject:forKey:] 7 \"count\"",
                     "-[SuiteDefaults removeObjectForKey:] \"on\"", "-[SuiteDefaults synchronize]",
                     "-[SuiteDefaults removePersistentDomainForName:] \"com.example.suite\""}));
    forgetSuites();
}

TEST(FoundationTest, ATextThatCannotBeKeptIsRefusedWithALogLine) {
    const auto preferences = NSUserDefaults::initWithSuiteName("com.example.suite");
    takeJournal();
    preferences->setObject("\xFF", "a");
    preferences->setObject(PropertyList::Array{std::string("x\0y", 3)}, "b");
    preferences->setObject(1, "\xC0");
    EXPECT_EQ(takeJournal().size(), 3U);
    EXPECT_TRUE(preferences->dictionaryRepresentation().empty());
    forgetSuites();
}

TEST(FoundationTest, LogLinesAreNotFormats) {
    NSLog("100%% of %@", std::string("%@ %d"));
    EXPECT_EQ(takeJournal(), Lines{"log: 100% of %@ %d"});
}

TEST(FoundationTest, DatesAreWrittenInAPattern) {
    const auto formatter = NSDateFormatter::dateFormatter();
    formatter->setDateFormat("yyyy");
    EXPECT_EQ(formatter->stringFromDate(NSDate{21'692'800}), "2001");
    formatter->setDateStyle(NSDateFormatterStyle::Short);
    formatter->setTimeStyle(NSDateFormatterStyle::None);
}

TEST(FoundationTest, IdentifiersAreFreshAndOfTheirForm) {
    auto form = NSUUIDString();
    for (auto& character : form) {
        if (std::string_view("0123456789ABCDEF").contains(character))
            character = 'x';
    }
    EXPECT_EQ(form, "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx");
    EXPECT_NE(NSUUIDString(), NSUUIDString());
}

TEST(FoundationTest, ADarwinNotificationIsPostedAtOnceAndBare) {
    DarwinNotifyCenter::postNotification("com.orvel.corvexprefs/ReloadPrefs");
    EXPECT_EQ(takeJournal(), Lines{"Darwin notification com.orvel.corvexprefs/ReloadPrefs"});
}

TEST(FoundationTest, TheMainQueueRunsWorkLaterAndOnce) {
    int runs = 0;
    MainQueue::async([&runs] { ++runs; });
    MainQueue::after(std::chrono::seconds(-1), [&runs] { runs += 10; });
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(takeJournal(), (Lines{"main queue: async", "main queue: after 0"}));
    EXPECT_EQ(runWaitingWork(), 2U);
    EXPECT_EQ(runs, 11);
}

TEST(FoundationTest, ALibraryIsOpenedLookedIntoAndClosedOnce) {
    setServicesLibrary(servicesLibrary());
    auto library = DynamicLibrary::open("/x/BackBoardServices", DynamicLibrary::Binding::Immediate);
    ASSERT_TRUE(library);
    EXPECT_NE(library->symbol("BKSTerminateApplicationForReasonAndReportWithDescription"), nullptr);
    EXPECT_EQ(library->symbol("noSuchFunction"), nullptr);
    library->close();
    EXPECT_EQ(library->symbol("BKSTerminateApplicationForReasonAndReportWithDescription"), nullptr);
    library.reset();
    setServicesLibrary(nullptr);
    EXPECT_FALSE(DynamicLibrary::open("@rpath/libroot.dylib", DynamicLibrary::Binding::Immediate));
    EXPECT_EQ(takeJournal(),
              (Lines{"dlopen /x/BackBoardServices 2", "dlclose", "dlopen @rpath/libroot.dylib 2"}));
}

TEST(UIKitTest, ImagesAndFontsAreTheFrameworks) {
    EXPECT_EQ(std::get<PropertyList>(UIFont::systemFontOfSize(12)->performSelector("pointSize")),
              PropertyList(12.0));
    const auto image = UIImage::systemImageNamed("gear");
    const auto original = image->imageWithRenderingMode(UIImageRenderingMode::AlwaysOriginal);
    EXPECT_EQ(std::get<PropertyList>(original->performSelector("renderingMode")), PropertyList(1));
    EXPECT_FALSE(UIImage::systemImageNamed("no.such.symbol"));
    EXPECT_FALSE(UIImage::imageWithContentsOfFile("/missing.png"));
}

TEST(UIKitTest, ATextFieldIsTheFrameworks) {
    const auto field = make<UITextField>();
    takeJournal();
    EXPECT_EQ(field->text(), "");
    field->performSelector("setText:", {PropertyList("Größe")});
    field->setPlaceholder("Name");
    field->setBorderStyle(UITextBorderStyle::RoundedRect);
    EXPECT_EQ(field->text(), "Größe");
    EXPECT_TRUE(field->becomeFirstResponder());
    EXPECT_EQ(takeJournal(),
              (Lines{"-[UITextField setText:] \"Größe\"", "-[UITextField setPlaceholder:] \"Name\"",
                     "-[UITextField setBorderStyle:] 3", "-[UITextField becomeFirstResponder]"}));
}
