#pragma once

#include "time/Clock.h"

/// The host's time.
class RealClock final : public Clock {
public:
    // Clock:
    [[nodiscard]] std::chrono::nanoseconds uptime() const override;
    [[nodiscard]] NSDate date() const override;
};
