#pragma once

#include <compare>
#include <string>

/// A moment, as the platform counts it.
struct NSDate {
    /// Seconds from 1970-01-01 to 2001-01-01, both 00:00 UTC.
    static constexpr double timeIntervalBetween1970AndReferenceDate = 978307200.0;

    /// Seconds since 2001-01-01 00:00 UTC, fractions included.
    double timeIntervalSinceReferenceDate = 0;

    /// Now, on the platform's clock.
    [[nodiscard]] static NSDate date();

    /// In UTC and to the second: "2026-11-21 03:08:34 +0000".
    [[nodiscard]] std::string description() const;

    friend auto operator<=>(const NSDate&, const NSDate&) = default;
};
