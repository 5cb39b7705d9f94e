#include "scrolling/ScrollMotion.h"

#include "AnimationCurve.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double millisecondsPerSecond = 1000;
/// What part of a movement beyond an edge is followed at its beginning.
constexpr double edgeStiffness = 0.55;
/// How fast the spring draws contents back, per second: all but a hundredth of the way in 0.44 s.
constexpr double springRate = 15;

/// The part of its speed that a motion loses in a second, were it to go on losing it as at first.
const double decayRate = -millisecondsPerSecond * std::log(ScrollMotion::keptPerMillisecond);

} // namespace

ScrollMotion ScrollMotion::glide(double from, double target, double least, double greatest) {
    const auto rest = std::clamp(target, least, greatest);
    const auto edge = std::clamp(from, least, greatest);
    const auto comesInside = (from < least && target >= least) || (from > greatest && target <= greatest);
    if (from != edge && !comesInside)
        return spring(from, 0, edge);
    ScrollMotion motion(from, rest);
    if (target == rest)
        return motion;
    motion.target_ = target;
    motion.springBegin_ = std::log((target - from) / (target - rest)) / decayRate;
    motion.springStartSpeed_ = decayRate * (target - rest);
    return motion;
}

ScrollMotion ScrollMotion::spring(double from, double velocity, double rest) {
    ScrollMotion motion(from, rest);
    motion.springBegin_ = 0;
    motion.springStart_ = from - rest;
    motion.springStartSpeed_ = velocity;
    return motion;
}

ScrollMotion ScrollMotion::ease(double from, double rest, double duration) {
    ScrollMotion motion(from, rest);
    motion.easeDuration_ = duration;
    return motion;
}

double ScrollMotion::glideEnd(double from, double velocity) {
    return from + velocity / decayRate;
}

double ScrollMotion::banded(double distance, double length) {
    if (length <= 0)
        return 0;
    return length * (1 - 1 / (edgeStiffness * distance / length + 1));
}

double ScrollMotion::unbanded(double distance, double length) {
    if (length <= 0)
        return 0;
    return length / edgeStiffness * (1 / (1 - distance / length) - 1);
}

double ScrollMotion::at(double time) const {
    if (easeDuration_ > 0)
        return from_ + (rest_ - from_) * AnimationCurve::easeInOut().progress(time / easeDuration_);
    if (time >= springBegin_)
        return rest_ + springDistance(time - springBegin_);
    return target_ + (from_ - target_) * std::exp(-decayRate * time);
}

bool ScrollMotion::isOverAt(double time) const {
    if (easeDuration_ > 0)
        return time >= easeDuration_;
    const auto isThere = std::abs(at(time) - rest_) < closeEnough;
    if (springBegin_ == never)
        return isThere;
    return time >= springBegin_ && isThere &&
           std::abs(springVelocity(time - springBegin_)) < closeEnough * springRate;
}

double ScrollMotion::springDistance(double time) const {
    const auto slope = springStartSpeed_ + springRate * springStart_;
    return (springStart_ + slope * time) * std::exp(-springRate * time);
}

double ScrollMotion::springVelocity(double time) const {
    const auto slope = springStartSpeed_ + springRate * springStart_;
    return slope * std::exp(-springRate * time) - springRate * springDistance(time);
}
