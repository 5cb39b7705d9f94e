#pragma once

#include "time/RealClock.h"

/// The host's time as it was when the present frame began. What a touch sets going so begins at one time, and
/// the picture that shows it first is of that time, too, however long both take.
class FrameClock final : public Clock {
public:
    /// Moves on to the host's time.
    void beginFrame();

    // Clock:
    [[nodiscard]] std::chrono::nanoseconds uptime() const override { return uptime_; }

    [[nodiscard]] NSDate date() const override { return date_; }

private:
    RealClock host_;
    std::chrono::nanoseconds uptime_ = host_.uptime();
    NSDate date_ = host_.date();
};
