#include "LayerAnimation.h"

double LayerAnimation::remaining(std::chrono::nanoseconds uptime) const {
    if (uptime >= begin + duration)
        return 0;
    const auto passed = std::chrono::duration<double>(uptime - begin);
    return 1 - curve.progress(passed / std::chrono::duration<double>(duration));
}
