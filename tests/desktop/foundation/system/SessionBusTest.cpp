#include "system/SessionBus.h"

#include "EnvironmentVariable.h"
#include "system/PrivateBus.h"
#include "system/SignalListener.h"

#include <gtest/gtest.h>

namespace {

constexpr auto addressVariable = "DBUS_SESSION_BUS_ADDRESS";

SessionBus::Signal signalWith(const std::string& argument) {
    return {.path = "/com/orvel/DarwinNotifyCenter",
            .interface = "com.orvel.DarwinNotifyCenter",
            .member = "Posted",
            .argument = argument};
}

/// How long a call takes.
template <class Call>
std::chrono::nanoseconds durationOf(Call call) {
    const auto start = std::chrono::steady_clock::now();
    call();
    return std::chrono::steady_clock::now() - start;
}

/// A second, and what a busy machine may add.
constexpr std::chrono::seconds longest{5};

} // namespace

TEST(SessionBusTest, CarriesTextOfAnyCharactersButNoncharactersAndZero) {
    using namespace std::string_literals;
    const PrivateBus daemon;
    const EnvironmentVariable address(addressVariable, daemon.address());
    SessionBus bus;
    for (const auto& text : {""s, "\x01\x7F\n"s, "é\uFDCF\uFDF0\uFFFD"s, "\U0001F600\U0001FFFD\U0010FFFD"s}) {
        EXPECT_TRUE(SessionBus::canCarry(text)) << text;
        EXPECT_TRUE(bus.emitSignal(signalWith(text))) << text;
    }
    for (const auto& text :
         {"a\0"s, "\xFF"s, "\xED\xA0\x80"s, "\uFDD0"s, "\uFDEF"s, "\uFFFE"s, "\U0010FFFF"s})
        EXPECT_FALSE(SessionBus::canCarry(text)) << text;
}

TEST(SessionBusTest, WithoutAnAddressThereIsNoBus) {
    const EnvironmentVariable address(addressVariable, std::nullopt);
    EXPECT_FALSE(SessionBus().emitSignal(signalWith("a")));
}

TEST(SessionBusTest, AnAddressThatLeadsNowhereIsNoBus) {
    const EnvironmentVariable address(addressVariable, "");
    for (const auto* const value : {"", "nonsense", "unix:path=/nowhere", "unix:", "autolaunch:", ";;"}) {
        address.set(value);
        EXPECT_FALSE(SessionBus().emitSignal(signalWith("a"))) << value;
    }
}

TEST(SessionBusTest, SendsSignalsInOrderOverOneConnection) {
    const PrivateBus daemon;
    const EnvironmentVariable address(addressVariable, daemon.address());
    SignalListener listener(daemon.address());
    SessionBus bus;
    EXPECT_TRUE(bus.emitSignal(signalWith("a")));
    EXPECT_TRUE(bus.emitSignal(signalWith("b")));
    EXPECT_EQ(listener.next(), "a");
    EXPECT_EQ(listener.next(), "b");
}

TEST(SessionBusTest, ABusThatDiedIsNoBus) {
    PrivateBus daemon;
    const EnvironmentVariable address(addressVariable, daemon.address());
    SessionBus bus;
    EXPECT_TRUE(bus.emitSignal(signalWith("a")));
    daemon.kill();
    EXPECT_FALSE(bus.emitSignal(signalWith("b")));
    EXPECT_FALSE(bus.emitSignal(signalWith("c")));
}

TEST(SessionBusTest, FindsANewBusInPlaceOfOneThatDied) {
    PrivateBus first;
    const EnvironmentVariable address(addressVariable, first.address());
    SessionBus bus;
    EXPECT_TRUE(bus.emitSignal(signalWith("a")));
    first.kill();
    const PrivateBus second;
    address.set(second.address());
    SignalListener listener(second.address());
    EXPECT_TRUE(bus.emitSignal(signalWith("b")));
    EXPECT_EQ(listener.next(), "b");
}

TEST(SessionBusTest, DoesNotWaitForABusThatStoppedAnswering) {
    const PrivateBus daemon;
    const EnvironmentVariable address(addressVariable, daemon.address());
    SessionBus bus;
    EXPECT_TRUE(bus.emitSignal(signalWith("a")));
    daemon.freeze();
    EXPECT_LT(durationOf([&] { EXPECT_FALSE(bus.emitSignal(signalWith("b"))); }), longest);
}

TEST(SessionBusTest, DoesNotWaitForABusThatNeverAnswers) {
    const PrivateBus daemon;
    const EnvironmentVariable address(addressVariable, daemon.address());
    daemon.freeze();
    EXPECT_LT(durationOf([] { EXPECT_FALSE(SessionBus().emitSignal(signalWith("a"))); }), longest);
}
