#include "SceneFrames.h"

#include <algorithm>
#include <cstdio>

void SceneFrames::add(double time, double pixels) {
    if (times_.size() < 2)
        first_ = std::max(first_, time);
    if (pixels <= 0)
        return;
    times_.push_back(time);
    pixels_.push_back(pixels);
}

bool SceneFrames::isGood() const {
    return !times_.empty() && median() <= mostCopies * timeOfCopy_;
}

bool SceneFrames::isFasterThan(const SceneFrames& other) const {
    return !times_.empty() && !other.times_.empty() && median() < other.median();
}

void SceneFrames::print() const {
    if (times_.empty()) {
        std::printf("  %-28s painted nothing\n", name_.c_str());
        return;
    }
    std::printf("  %-28s %6zu %8.2f %8.2f %8.2f %8.2f %8.1f %10.0f\n", name_.c_str(), times_.size(), first(),
                median(), quantile(times_, 0.95), timeOfCopy_, median() / timeOfCopy_,
                quantile(pixels_, 0.5));
}

double quantile(std::vector<double> values, double part) {
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}
