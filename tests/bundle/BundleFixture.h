#pragma once

#include "Foundation/PropertyList.h"
#include "TestDevice.h"
#include "texts/StringTable.h"

#include <gtest/gtest.h>

#include <string>

/// Where the pane's bundle is installed.
inline const std::string bundlePath = "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle";

/// A device on which the pane is installed.
class BundleFixture : public testing::Test {
protected:
    void SetUp() override;

    /// A property list of the bundle; empty when there is none of that name.
    [[nodiscard]] static PropertyList::Dictionary readList(const std::string& name);

    /// A string table of a language of the bundle; a failure when there is none.
    [[nodiscard]] static StringTable::Texts readTexts(const std::string& language, const std::string& table);

    /// A value as text; "" when there is none.
    [[nodiscard]] static std::string textIn(const PropertyList::Dictionary& row, const std::string& key);

    TestDevice device;
};
