#pragma once

#include <chrono>
#include <functional>

/// The main thread's queue of work. Work is run in the order of its time, and at one time in the order in
/// which it was queued; never before the function that queued it has returned to the queue. Main thread only.
class MainQueue {
public:
    static void async(std::function<void()> block);

    /// Runs `block` once `delay` has passed. A delay that is not positive is none.
    static void after(std::chrono::nanoseconds delay, std::function<void()> block);
};
