#pragma once

#include "DeviceTest.h"

#include <string>
#include <string_view>

/// A device that bundles are installed on.
class BundleFixture : public DeviceTest {
protected:
    explicit BundleFixture(const TestDevice::Settings& settings = {}) : DeviceTest(settings) {}

    /// The bytes of the code that was built under that name.
    [[nodiscard]] static std::string builtCode(const std::string& name);

    /// Installs a bundle with an Info.plist that names "code" and the class, and with this code.
    void install(const std::string& bundle, const std::string& principalClass, const std::string& code) const;

    /// The Info.plist alone, its dictionary as XML.
    void writeInfo(const std::string& bundle, const std::string& dictionary) const;
};
