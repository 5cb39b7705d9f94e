#pragma once

#include <vector>

/// `first`, and what follows it in equal steps, up to `last`.
[[nodiscard]] inline std::vector<double> steps(double first, double last, double step) {
    std::vector<double> values;
    for (int count = 0; first + count * step <= last + step / 1000; ++count)
        values.push_back(first + count * step);
    return values;
}
