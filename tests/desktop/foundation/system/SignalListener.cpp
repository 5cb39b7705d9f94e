#include "system/SignalListener.h"

#include <gtest/gtest.h>

#include <chrono>

SignalListener::SignalListener(const std::string& busAddress) {
    EXPECT_GE(sd_bus_new(&bus_), 0);
    EXPECT_GE(sd_bus_set_address(bus_, busAddress.c_str()), 0);
    EXPECT_GE(sd_bus_set_bus_client(bus_, 1), 0);
    EXPECT_GE(sd_bus_start(bus_), 0);
    EXPECT_GE(sd_bus_match_signal(bus_, nullptr, nullptr, "/com/orvel/DarwinNotifyCenter",
                                  "com.orvel.DarwinNotifyCenter", "Posted", hear, this),
              0);
}

SignalListener::~SignalListener() {
    sd_bus_close_unref(bus_);
}

std::optional<std::string> SignalListener::next() {
    using SteadyClock = std::chrono::steady_clock;
    for (const auto deadline = SteadyClock::now() + std::chrono::seconds(10); heard_.empty();) {
        const int processed = sd_bus_process(bus_, nullptr);
        if (processed > 0)
            continue;
        if (processed < 0 || SteadyClock::now() > deadline || sd_bus_wait(bus_, 100'000) < 0)
            return std::nullopt;
    }
    auto name = heard_.front();
    heard_.erase(heard_.begin());
    return name;
}

int SignalListener::hear(sd_bus_message* message, void* listener, sd_bus_error* /*error*/) {
    const char* name = nullptr;
    EXPECT_GT(sd_bus_message_read(message, "s", &name), 0);
    static_cast<SignalListener*>(listener)->heard_.emplace_back(name);
    return 0;
}
