#pragma once

#include <systemd/sd-bus.h>

#include <optional>
#include <string>
#include <vector>

/// Hears on a bus what is posted as Darwin notifications, from the end of its construction on.
class SignalListener {
public:
    explicit SignalListener(const std::string& busAddress);
    SignalListener(const SignalListener&) = delete;
    SignalListener& operator=(const SignalListener&) = delete;
    ~SignalListener();

    /// The next name; nothing when none comes for ten seconds.
    [[nodiscard]] std::optional<std::string> next();

private:
    static int hear(sd_bus_message* message, void* listener, sd_bus_error* error);

    sd_bus* bus_ = nullptr;
    std::vector<std::string> heard_;
};
