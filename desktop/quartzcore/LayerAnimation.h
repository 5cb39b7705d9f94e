#pragma once

#include "AnimationCurve.h"
#include "LayerProperty.h"

#include <chrono>
#include <memory>

class AnimationGroup;

/// One property of a layer on its way to the value that it already has: what is shown is that value and, less
/// and less, `distance`.
struct LayerAnimation {
    LayerProperty property;
    LayerValue distance;            ///< the old value less the new one
    std::chrono::nanoseconds begin; ///< uptime, a delay included
    std::chrono::nanoseconds duration;
    AnimationCurve curve;
    std::shared_ptr<AnimationGroup> group;

    /// The part of `distance` that is left at that uptime: 1 before the begin, 0 from the end on.
    [[nodiscard]] double remaining(std::chrono::nanoseconds uptime) const;
};
