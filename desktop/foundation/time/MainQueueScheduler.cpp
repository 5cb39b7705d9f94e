#include "time/MainQueueScheduler.h"

#include <algorithm>

void MainQueueScheduler::after(std::chrono::nanoseconds delay, std::function<void()> block) {
    const auto wait = std::max(delay, std::chrono::nanoseconds::zero());
    const auto now = clock_.uptime();
    const auto due =
        wait > std::chrono::nanoseconds::max() - now ? std::chrono::nanoseconds::max() : now + wait;
    blocks_.emplace(DueTime(due, queued_++), std::move(block));
}

std::size_t MainQueueScheduler::runDue() {
    const auto now = clock_.uptime();
    const auto firstOfThisCall = queued_; // what a block queues for now sorts behind all that was due before
    std::size_t count = 0;
    while (!blocks_.empty()) {
        const auto [due, order] = blocks_.begin()->first;
        if (due > now || order >= firstOfThisCall)
            break;
        const auto node = blocks_.extract(blocks_.begin());
        node.mapped()();
        ++count;
    }
    return count;
}

std::optional<std::chrono::nanoseconds> MainQueueScheduler::nextDue() const {
    if (blocks_.empty())
        return std::nullopt;
    return blocks_.begin()->first.first;
}

void MainQueueScheduler::advance(VirtualClock& clock, std::chrono::nanoseconds duration) {
    const auto end = clock.uptime() + std::max(duration, std::chrono::nanoseconds::zero());
    runUntil(clock, end);
    clock.moveTo(end);
}

bool MainQueueScheduler::settle(VirtualClock& clock, std::chrono::nanoseconds limit) {
    runUntil(clock, clock.uptime() + limit);
    return blocks_.empty();
}

void MainQueueScheduler::runUntil(VirtualClock& clock, std::chrono::nanoseconds end) {
    for (auto due = nextDue(); due && *due <= end; due = nextDue()) {
        clock.moveTo(*due);
        runDue();
    }
}
