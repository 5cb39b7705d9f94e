#pragma once

#include <chrono>
#include <memory>
#include <string>

struct sd_bus;

/// A connection to the D-Bus session bus of the host, opened when it is first needed and again after it
/// broke. Whoever needs one owns it. One thread at a time.
class SessionBus {
public:
    struct Signal {
        std::string path;
        std::string interface;
        std::string member;
        std::string argument; ///< a text that the bus can carry
    };

    /// Whether the bus takes the text: valid UTF-8 without U+0000 and without what Unicode calls
    /// noncharacters.
    [[nodiscard]] static bool canCarry(const std::string& text);

    /// Sends a signal to the bus that `DBUS_SESSION_BUS_ADDRESS` names. Waits a second at most, in whatever
    /// state the bus is. \returns whether the bus has received it; false when there is no bus
    bool emitSignal(const Signal& signal);

private:
    struct Close {
        void operator()(sd_bus* bus) const;
    };

    using Connection = std::unique_ptr<sd_bus, Close>;
    using Deadline = std::chrono::steady_clock::time_point;

    [[nodiscard]] static Connection connect(Deadline deadline);
    [[nodiscard]] bool deliver(const Signal& signal, Deadline deadline) const;

    Connection connection_;
};
