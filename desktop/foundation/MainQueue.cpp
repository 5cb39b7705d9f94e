#include "Dispatch/MainQueue.h"

#include "Device.h"
#include "time/MainQueueScheduler.h"

void MainQueue::async(std::function<void()> block) {
    after(std::chrono::nanoseconds::zero(), std::move(block));
}

void MainQueue::after(std::chrono::nanoseconds delay, std::function<void()> block) {
    Device::current().mainQueue().after(delay, std::move(block));
}
