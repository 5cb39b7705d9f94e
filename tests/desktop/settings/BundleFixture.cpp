#include "BundleFixture.h"

#include "PreferenceBundle.h"

#include <fstream>
#include <iterator>

std::string BundleFixture::builtCode(const std::string& name) {
    std::ifstream file(BUNDLES_FOLDER "/" + name, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << name << " was not built";
    return {std::istreambuf_iterator<char>(file), {}};
}

void BundleFixture::install(const std::string& bundle, const std::string& principalClass,
                            const std::string& code) const {
    writeInfo(bundle,
              "<key>CFBundleExecutable</key><string>code</string><key>NSPrincipalClass</key><string>" +
                  principalClass + "</string>");
    device.write(PreferenceBundle::pathOf(bundle) + "/code", code);
}

void BundleFixture::writeInfo(const std::string& bundle, const std::string& dictionary) const {
    device.write(PreferenceBundle::pathOf(bundle) + "/Info.plist",
                 "<plist version=\"1.0\"><dict>" + dictionary + "</dict></plist>");
}
