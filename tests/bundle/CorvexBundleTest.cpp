// What is installed for the pane: its entry, its lists and its code.

#include "DeviceInstaller.h"
#include "EntryList.h"
#include "Foundation/NSDictionary.h"
#include "PreferenceBundle.h"
#include "PreferenceKeys.h"
#include "TestDevice.h"
#include "Version.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <algorithm>
#include <string>

namespace {

const std::string bundlePath = "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle";

class CorvexBundleTest : public testing::Test {
protected:
    void SetUp() override {
        const auto installed = DeviceInstaller(DEVICE_TREE).install(Device::current().root());
        ASSERT_TRUE(installed) << installed.error();
    }

    [[nodiscard]] static PropertyList::Dictionary readList(const std::string& name) {
        return dictionaryWithContentsOfFile(bundlePath + "/" + name).value_or(PropertyList::Dictionary());
    }

    [[nodiscard]] static std::string textIn(const PropertyList::Dictionary& row, const std::string& key) {
        const auto found = row.find(key);
        return found == row.end() ? "" : found->second.description();
    }

    TestDevice device;
};

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

bool isInCatalogue(const std::string& key) {
    return std::ranges::find(PreferenceKeyCatalogue, key) != PreferenceKeyCatalogue.end();
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
                                                        {"icon", "icon.png"},
                                                        {"isController", true},
                                                        {"label", "Corvex"}}));
}

TEST_F(CorvexBundleTest, ItsInfoNamesWhatItIs) {
    const auto info = readList("Info.plist");
    EXPECT_EQ(textIn(info, "CFBundleIdentifier"), "com.orvel.corvexprefs");
    EXPECT_EQ(textIn(info, "CFBundleExecutable"), "corvexPrefs");
    EXPECT_EQ(textIn(info, "NSPrincipalClass"), "cxRootListController");
    EXPECT_EQ(textIn(info, "CFBundleShortVersionString"), corvexVersion);
    EXPECT_EQ(textIn(info, "CFBundleVersion"), corvexVersion);
}

TEST_F(CorvexBundleTest, EveryRowOfTheFirstListKeepsASettingOfTheCatalogue) {
    const auto list = readList("Root.plist");
    EXPECT_EQ(textIn(list, "title"), "Corvex");
    ASSERT_TRUE(list.contains("items"));
    const auto& items = *list.at("items").getIf<PropertyList::Array>();
    EXPECT_FALSE(items.empty());
    for (const auto& item : items) {
        const auto& row = *item.getIf<PropertyList::Dictionary>();
        EXPECT_NE(textIn(row, "label"), "");
        if (textIn(row, "cell") == "PSGroupCell")
            continue;
        EXPECT_EQ(textIn(row, "defaults"), preferenceSuiteName);
        EXPECT_TRUE(isInCatalogue(textIn(row, "key"))) << textIn(row, "key");
    }
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
