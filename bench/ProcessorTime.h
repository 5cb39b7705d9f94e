#pragma once

#include <chrono>
#include <ctime>

/// The processor time that all threads of the process have used, which other work on the machine does not
/// lengthen as it does the time of day.
inline std::chrono::duration<double, std::milli> processorTime() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}
