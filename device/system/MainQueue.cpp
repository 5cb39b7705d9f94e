#include "Dispatch/MainQueue.h"

#include "Runtime.h"

#include <algorithm>
#include <memory>

struct DispatchQueue;

extern "C" {
extern DispatchQueue _dispatch_main_q; // NOLINT(*-reserved-identifier): the system's name
void dispatch_async_f(DispatchQueue* queue, void* context, void (*work)(void* context));
void dispatch_after_f(std::uint64_t when, DispatchQueue* queue, void* context, void (*work)(void* context));
std::uint64_t dispatch_time(std::uint64_t base, std::int64_t nanoseconds);
}

namespace {

using Work = std::function<void()>;

constexpr std::uint64_t now = 0;

void run(void* context) {
    const AutoreleasePool pool;
    const std::unique_ptr<Work> work(static_cast<Work*>(context));
    (*work)();
}

} // namespace

void MainQueue::async(std::function<void()> block) {
    dispatch_async_f(&_dispatch_main_q, new Work(std::move(block)), &run);
}

void MainQueue::after(std::chrono::nanoseconds delay, std::function<void()> block) {
    const auto waited = std::max(delay, std::chrono::nanoseconds::zero());
    dispatch_after_f(dispatch_time(now, waited.count()), &_dispatch_main_q, new Work(std::move(block)), &run);
}
