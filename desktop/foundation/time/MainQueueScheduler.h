#pragma once

#include "time/Clock.h"
#include "time/VirtualClock.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <utility>

/// The work that waits on the device's main queue. With a real clock, whoever runs the event loop calls
/// `runDue` and sleeps until `nextDue`; with a virtual one, `advance` and `settle` move the time as well.
/// Main thread only; work may queue more work.
class MainQueueScheduler {
public:
    explicit MainQueueScheduler(const Clock& clock) : clock_(clock) {}

    /// Queues a block to run once the delay has passed.
    void after(std::chrono::nanoseconds delay, std::function<void()> block);

    /// Runs the blocks whose time has come, in order of time and, at one time, of queueing; those that they
    /// queue for now are left for the next call. \returns how many ran
    std::size_t runDue();

    /// Drops all blocks that wait, as the end of a process does.
    void forgetAll() { std::exchange(blocks_, {}).clear(); }

    /// The uptime at which the next block is due, if any waits.
    [[nodiscard]] std::optional<std::chrono::nanoseconds> nextDue() const;

    /// Moves the clock on by `duration`, running what falls due on the way with the clock at its due time.
    /// \param clock the virtual clock that this scheduler was made with
    void advance(VirtualClock& clock, std::chrono::nanoseconds duration);

    /// Moves the clock on until nothing waits. \returns false when something still waited at `limit`
    bool settle(VirtualClock& clock, std::chrono::nanoseconds limit);

private:
    using DueTime = std::pair<std::chrono::nanoseconds, std::uint64_t>; ///< uptime, then order of queueing

    void runUntil(VirtualClock& clock, std::chrono::nanoseconds end);

    const Clock& clock_;
    std::uint64_t queued_ = 0;
    std::map<DueTime, std::function<void()>> blocks_;
};
