#include "AnimationCurve.h"

#include <algorithm>

namespace {

/// One coordinate of the curve at the parameter `t`, its control points being `first` and `second`.
double coordinate(double first, double second, double t) {
    const auto rest = 1 - t;
    return 3 * rest * rest * t * first + 3 * rest * t * t * second + t * t * t;
}

} // namespace

double AnimationCurve::progress(double time) const {
    time = std::clamp(time, 0.0, 1.0);
    if (time == 0 || time == 1)
        return time;
    double low = 0;
    double high = 1;
    constexpr auto halvings = 40; // x rises with the parameter: to the last bit that matters
    for (auto step = 0; step < halvings; ++step) {
        const auto middle = (low + high) / 2;
        (coordinate(x1_, x2_, middle) < time ? low : high) = middle;
    }
    return coordinate(y1_, y2_, (low + high) / 2);
}
