#pragma once

#include "Foundation/NSDate.h"

#include <chrono>

/// The device's time. Main thread only.
class Clock {
public:
    virtual ~Clock() = default;

    /// Time since some fixed moment; never goes back.
    [[nodiscard]] virtual std::chrono::nanoseconds uptime() const = 0;

    /// The moment it is.
    [[nodiscard]] virtual NSDate date() const = 0;
};
