// What is installed for the pane: its entry and its code.

#include "BundleFixture.h"
#include "DesktopImage.h"
#include "EntryList.h"
#include "PreferenceBundle.h"
#include "Version.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <string>

namespace {

class CorvexBundleTest : public BundleFixture {};

/// Where a symbol is that the code exports which holds a class; null when it exports none of that name.
void* exportedBeside(const Class& loaded, const char* symbol) {
    Dl_info code{};
    if (dladdr(&loaded, &code) == 0)
        return nullptr;
    void* const handle = dlopen(code.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
    if (handle == nullptr)
        return nullptr;
    void* const found = dlsym(handle, symbol);
    dlclose(handle);
    return found;
}

} // namespace

TEST_F(CorvexBundleTest, OneEntryLeadsToIt) {
    const auto entries = EntryList::read();
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].label, "Corvex");
    EXPECT_EQ(entries[0].folder, bundlePath);
    EXPECT_EQ(entries[0].detail, textIn(readList("Info.plist"), "NSPrincipalClass"));
    EXPECT_EQ(entries[0].row, (PropertyList::Dictionary{{"bundle", "corvexPrefs"},
                                                        {"cell", "PSLinkCell"},
                                                        {"detail", "cxRootListController"},
                                                        {"icon", "rowIcon.png"},
                                                        {"isController", true},
                                                        {"label", "Corvex"}}));
}

TEST_F(CorvexBundleTest, ItsIconHasTheSizeInWhichItIsShown) {
    const auto sizeOf = [](const std::string& name, double scale) {
        const auto image = DesktopImage::withContentsOfFile(bundlePath + name, scale);
        return image ? DesktopImage::sizeOf(*image) : CGSize();
    };
    for (const auto scale : {1.0, 2.0, 3.0}) {
        EXPECT_EQ(sizeOf("/icon.png", scale), (CGSize{60, 60})) << scale;
        EXPECT_EQ(sizeOf("/rowIcon.png", scale), (CGSize{29, 29})) << scale;
    }
}

TEST_F(CorvexBundleTest, ItsInfoNamesWhatItIs) {
    const auto info = readList("Info.plist");
    EXPECT_EQ(textIn(info, "CFBundleIdentifier"), "com.orvel.corvexprefs");
    EXPECT_EQ(textIn(info, "CFBundleExecutable"), "corvexPrefs");
    EXPECT_EQ(textIn(info, "NSPrincipalClass"), "cxRootListController");
    EXPECT_EQ(textIn(info, "CFBundleShortVersionString"), corvexVersion);
    EXPECT_EQ(textIn(info, "CFBundleVersion"), corvexVersion);
}

TEST_F(CorvexBundleTest, ItsCodeLoadsAndMakesTheRootPage) {
    const auto bundle = PreferenceBundle::load("corvexPrefs");
    ASSERT_TRUE(bundle) << bundle.error();
    const auto page = bundle->makePage();
    ASSERT_TRUE(page) << page.error();
    EXPECT_EQ((*page)->isa().name(), "cxRootListController");
    EXPECT_TRUE(device.log().take().empty());
}

TEST_F(CorvexBundleTest, ItsOneExportIsEmptyUntilTheServiceHasBeenLookedUp) {
    const auto bundle = PreferenceBundle::load("corvexPrefs");
    ASSERT_TRUE(bundle) << bundle.error();
    const auto& pageClass = *NSClassFromString("cxRootListController");
    auto* const* const exported = static_cast<void**>(
        exportedBeside(pageClass, "BKSTerminateApplicationForReasonAndReportWithDescription"));
    ASSERT_NE(exported, nullptr);
    EXPECT_EQ(*exported, nullptr);
    pageClass.create()->performSelector("terminateSettingsUsingBKS");
    EXPECT_NE(*exported, nullptr);
}
