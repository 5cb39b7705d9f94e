#include "system/ApplicationTermination.h"

#include "CoreFoundation/CFString.h"
#include "DeviceInstaller.h"
#include "System/DynamicLibrary.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr auto services = "/System/Library/PrivateFrameworks/BackBoardServices.framework/BackBoardServices";
constexpr auto function = "BKSTerminateApplicationForReasonAndReportWithDescription";

using Terminate = void(CFStringRef, int, bool, CFStringRef);
using Requests = std::vector<ApplicationTermination::Request>;

/// A device with its services, and who ends its applications.
class ApplicationTerminationTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(DeviceInstaller(DEVICE_TREE).install(Device::current().root()));
        Device::current().terminations().setHandler(
            [this](const auto& request) { requests.push_back(request); });
    }

    TestDevice device;
    Requests requests;
};

} // namespace

TEST_F(ApplicationTerminationTest, TheDevicesServicePassesARequestOn) {
    auto library = DynamicLibrary::open(services, DynamicLibrary::Binding::Lazy);
    ASSERT_TRUE(library);
    auto* const terminate = library->function<Terminate>(function);
    ASSERT_NE(terminate, nullptr);
    const CFString identifier("com.apple.Preferences");
    const CFString why("it was asked to");
    terminate(identifier.ref(), 1, false, nullptr);
    terminate(identifier.ref(), 5, true, why.ref());
    terminate(nullptr, 0, false, nullptr);
    EXPECT_EQ(
        requests,
        (Requests{{.identifier = "com.apple.Preferences", .reason = 1, .report = false, .description = {}},
                  {.identifier = "com.apple.Preferences",
                   .reason = 5,
                   .report = true,
                   .description = "it was asked to"},
                  {.identifier = "", .reason = 0, .report = false, .description = {}}}));
}

TEST_F(ApplicationTerminationTest, WithoutAHandlerNothingHappens) {
    Device::current().terminations().setHandler({});
    Device::current().terminations().request({.identifier = "com.apple.Preferences"});
    EXPECT_TRUE(requests.empty());
}
