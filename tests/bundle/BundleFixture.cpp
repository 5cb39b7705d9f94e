#include "BundleFixture.h"

#include "DeviceInstaller.h"
#include "Foundation/NSData.h"
#include "Foundation/NSDictionary.h"

void BundleFixture::SetUp() {
    const auto installed = DeviceInstaller(DEVICE_TREE).install(Device::current().root());
    ASSERT_TRUE(installed) << installed.error();
}

PropertyList::Dictionary BundleFixture::readList(const std::string& name) {
    return dictionaryWithContentsOfFile(bundlePath + "/" + name).value_or(PropertyList::Dictionary());
}

StringTable::Texts BundleFixture::readTexts(const std::string& language, const std::string& table) {
    const auto file = bundlePath + "/" + language + ".lproj/" + table + ".strings";
    const auto bytes = NSData::dataWithContentsOfFile(file);
    const auto parsed = bytes ? StringTable::parse(bytes->view()) : StringTable();
    EXPECT_TRUE(bytes.has_value() && parsed.has_value()) << file;
    return parsed ? parsed->texts() : StringTable::Texts();
}

std::string BundleFixture::textIn(const PropertyList::Dictionary& row, const std::string& key) {
    const auto found = row.find(key);
    return found == row.end() ? "" : found->second.description();
}
