#pragma once

#include "AnimationCurve.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>

class CALayerPeer;

/// What one call for an animation has started: the property animations of several layers with one course, and
/// the completion that is called once when the last of them has ended. Kept by those animations. Main thread
/// only.
class AnimationGroup : public std::enable_shared_from_this<AnimationGroup> {
public:
    using Completion = std::function<void(bool finished)>;

    struct Course {
        std::chrono::nanoseconds duration{};
        std::chrono::nanoseconds delay{};
        AnimationCurve curve = AnimationCurve::easeInOut();
        bool fromCurrentState = false; ///< in place of what still runs, instead of on top of it
    };

    /// Runs `changes`; what they set on layers goes to the new values along the course. A nested call with no
    /// duration of its own changes at once. The completion is called before this returns when nothing
    /// changed or the course has no length.
    static void run(const Course& course, const std::function<void()>& changes, Completion completion);

    /// Runs `changes` with nothing of them animated, whatever group is recording.
    static void runWithoutAnimation(const std::function<void()>& changes);

    /// The group whose changes are being made now; null when changes are not to be animated.
    [[nodiscard]] static AnimationGroup* recording();

    AnimationGroup(const Course& course, Completion completion)
        : course_(course),
          completion_(std::move(completion)) {}

    AnimationGroup(const AnimationGroup&) = delete;
    AnimationGroup& operator=(const AnimationGroup&) = delete;

    [[nodiscard]] const Course& course() const { return course_; }

    /// One more property animation belongs to the group.
    void animationStarted() { ++running_; }

    /// One of them was taken away before its end. When that was the last one, the completion is called from
    /// the main queue.
    void animationTakenAway();

private:
    void recorded();
    void complete(bool finished);

    Course course_;
    Completion completion_;
    std::size_t running_ = 0;
    bool finished_ = true;
};
