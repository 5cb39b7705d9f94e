#include "system/SessionBus.h"

#include "Foundation/NSString.h"

#include <unicode/unistr.h>

#include <systemd/sd-bus.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::chrono::seconds timeout{1};

using Time = std::chrono::steady_clock::time_point;

std::uint64_t microsecondsUntil(Time deadline) {
    const auto left = deadline - std::chrono::steady_clock::now();
    const auto count = std::chrono::duration_cast<std::chrono::microseconds>(left).count();
    return static_cast<std::uint64_t>(std::max(count, decltype(count){0}));
}

/// Goes through the greetings of a new connection.
bool becomesReady(sd_bus* bus, Time deadline) {
    while (sd_bus_is_ready(bus) == 0) {
        const int processed = sd_bus_process(bus, nullptr);
        if (processed > 0)
            continue;
        const auto left = microsecondsUntil(deadline);
        if (processed < 0 || left == 0)
            return false;
        if (const int waited = sd_bus_wait(bus, left); waited < 0 && waited != -EINTR)
            return false;
    }
    return sd_bus_is_ready(bus) > 0;
}

/// Waits for the bus's answer to a call. Messages keep their order, so all that was sent before has arrived
/// too.
bool answers(sd_bus* bus, Time deadline) {
    const auto left = microsecondsUntil(deadline);
    sd_bus_message* ping = nullptr;
    if (left == 0 ||
        sd_bus_message_new_method_call(bus, &ping, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                                       "org.freedesktop.DBus.Peer", "Ping") < 0)
        return false;
    const bool answered = sd_bus_call(bus, ping, left, nullptr, nullptr) >= 0;
    sd_bus_message_unref(ping);
    return answered;
}

bool isNoncharacter(UChar32 character) {
    return (character >= 0xFDD0 && character <= 0xFDEF) || (character & 0xFFFE) == 0xFFFE;
}

} // namespace

bool SessionBus::canCarry(const std::string& text) {
    if (!isValidUTF8(text))
        return false;
    const auto units = icu::UnicodeString::fromUTF8(text);
    for (int32_t i = 0; i < units.length(); i = units.moveIndex32(i, 1)) {
        if (const auto character = units.char32At(i); character == 0 || isNoncharacter(character))
            return false;
    }
    return true;
}

bool SessionBus::emitSignal(const Signal& signal) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    if (connection_ && deliver(signal, deadline))
        return true;
    connection_ = connect(deadline);
    if (connection_ && deliver(signal, deadline))
        return true;
    connection_.reset();
    return false;
}

void SessionBus::Close::operator()(sd_bus* bus) const {
    sd_bus_close_unref(bus);
}

SessionBus::Connection SessionBus::connect(Deadline deadline) {
    const char* const address = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    sd_bus* bus = nullptr;
    if (address == nullptr || sd_bus_new(&bus) < 0)
        return nullptr;
    Connection connection(bus);
    const bool begun =
        sd_bus_set_address(bus, address) >= 0 && sd_bus_set_bus_client(bus, 1) >= 0 && sd_bus_start(bus) >= 0;
    return begun && becomesReady(bus, deadline) ? std::move(connection) : nullptr;
}

bool SessionBus::deliver(const Signal& signal, Deadline deadline) const {
    return sd_bus_emit_signal(connection_.get(), signal.path.c_str(), signal.interface.c_str(),
                              signal.member.c_str(), "s", signal.argument.c_str()) >= 0 &&
           answers(connection_.get(), deadline);
}
