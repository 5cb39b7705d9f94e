#include "CoreFoundation/DarwinNotifyCenter.h"

#include "ChildProgram.h"
#include "EnvironmentVariable.h"
#include "TestDevice.h"
#include "system/DarwinNotifications.h"
#include "system/PrivateBus.h"
#include "system/SignalListener.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <string>
#include <vector>

namespace {

constexpr auto addressVariable = "DBUS_SESSION_BUS_ADDRESS";

using Names = std::vector<std::string>;

/// Runs a program of its own that posts a notification on a device in the folder. \returns its exit code
int postInAnotherProcess(const std::string& folder, const std::string& name) {
    const int status = ChildProgram(NOTIFICATION_POSTER, {folder, name}).wait();
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

Names postedOnTheDevice() {
    return Device::current().notifications().take();
}

} // namespace

TEST(DarwinNotifyCenterTest, OtherProcessesHearAPostedName) {
    const TemporaryFolder folder;
    const PrivateBus bus;
    const EnvironmentVariable address(addressVariable, bus.address());
    SignalListener listener(bus.address());
    ASSERT_EQ(postInAnotherProcess(folder.path(), "com.example.pane/changed"), 0);
    EXPECT_EQ(listener.next(), "com.example.pane/changed");
}

TEST(DarwinNotifyCenterTest, NamesArriveWholeWhateverTheyHold) {
    const TestDevice device;
    const PrivateBus bus;
    const EnvironmentVariable address(addressVariable, bus.address());
    SignalListener listener(bus.address());
    const Names names{"a/b//c", "", "é 😀 \u202F", "\x01\n%@", std::string(100'000, 'x')};
    for (const auto& name : names) {
        DarwinNotifyCenter::postNotification(name);
        EXPECT_EQ(listener.next(), name);
    }
    EXPECT_EQ(postedOnTheDevice(), names);
}

TEST(DarwinNotifyCenterTest, WithoutABusNamesAreOnlyKept) {
    const EnvironmentVariable address(addressVariable, std::nullopt);
    TestDevice device;
    DarwinNotifyCenter::postNotification("a");
    DarwinNotifyCenter::postNotification("b");
    DarwinNotifyCenter::postNotification("a");
    EXPECT_EQ(postedOnTheDevice(), (Names{"a", "b", "a"}));
    EXPECT_EQ(device.log().take(), Names{});
}

TEST(DarwinNotifyCenterTest, EachNameIsAnsweredOnce) {
    const EnvironmentVariable address(addressVariable, std::nullopt);
    const TestDevice device;
    DarwinNotifyCenter::postNotification("a");
    EXPECT_EQ(postedOnTheDevice(), Names{"a"});
    EXPECT_EQ(postedOnTheDevice(), Names{});
    DarwinNotifyCenter::postNotification("b");
    EXPECT_EQ(postedOnTheDevice(), Names{"b"});
}

TEST(DarwinNotifyCenterTest, ANameThatIsNoTextIsKeptAndLoggedButNotSent) {
    using namespace std::string_literals;
    TestDevice device;
    const PrivateBus bus;
    const EnvironmentVariable address(addressVariable, bus.address());
    SignalListener listener(bus.address());
    for (const auto& name : {"a\xFF"s, "b\0c"s, "d"s})
        DarwinNotifyCenter::postNotification(name);
    EXPECT_EQ(listener.next(), "d");
    EXPECT_EQ(postedOnTheDevice(), (Names{"a\xFF"s, "b\0c"s, "d"s}));
    EXPECT_EQ(
        device.log().take(),
        (Names{"The session bus cannot carry the name of a Darwin notification: {length = 2, bytes = 0x61ff}",
               "The session bus cannot carry the name of a Darwin notification: {length = 3, bytes = "
               "0x620063}"}));
}

TEST(DarwinNotifyCenterTest, ABusThatDiesIsNoFailure) {
    TestDevice device;
    PrivateBus bus;
    const EnvironmentVariable address(addressVariable, bus.address());
    DarwinNotifyCenter::postNotification("a");
    bus.kill();
    DarwinNotifyCenter::postNotification("b");
    EXPECT_EQ(postedOnTheDevice(), (Names{"a", "b"}));
    EXPECT_EQ(device.log().take(), Names{});
}

TEST(DarwinNotifyCenterTest, EachDeviceHasANotificationCentreOfItsOwn) {
    for (const std::string name : {"a", "b"}) {
        const TestDevice device;
        const PrivateBus bus;
        const EnvironmentVariable address(addressVariable, bus.address());
        SignalListener listener(bus.address());
        DarwinNotifyCenter::postNotification(name);
        EXPECT_EQ(listener.next(), name);
        EXPECT_EQ(postedOnTheDevice(), Names{name});
    }
}
