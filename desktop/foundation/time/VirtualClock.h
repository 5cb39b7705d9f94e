#pragma once

#include "time/Clock.h"

/// Time that moves only when it is told to, from uptime 0 and a given moment on.
class VirtualClock final : public Clock {
public:
    explicit VirtualClock(NSDate start) : start_(start) {}

    /// Moves time on; an uptime that has passed already changes nothing.
    void moveTo(std::chrono::nanoseconds uptime);

    // Clock:
    [[nodiscard]] std::chrono::nanoseconds uptime() const override { return uptime_; }

    [[nodiscard]] NSDate date() const override;

private:
    NSDate start_;
    std::chrono::nanoseconds uptime_{};
};
