#include "AnimationGroup.h"

#include "Dispatch/MainQueue.h"

#include <utility>

namespace {

AnimationGroup* recordingGroup = nullptr;

/// Makes a group, or none, the one whose changes are made, while it lives.
class Recording {
public:
    explicit Recording(AnimationGroup* group) : before_(std::exchange(recordingGroup, group)) {}

    ~Recording() { recordingGroup = before_; }

    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

private:
    AnimationGroup* const before_;
};

} // namespace

void AnimationGroup::run(const Course& course, const std::function<void()>& changes, Completion completion) {
    const auto group = std::make_shared<AnimationGroup>(course, std::move(completion));
    {
        const Recording recording(
            course.duration + course.delay > std::chrono::nanoseconds::zero() ? group.get() : nullptr);
        changes();
    }
    group->recorded();
}

void AnimationGroup::runWithoutAnimation(const std::function<void()>& changes) {
    const Recording recording(nullptr);
    changes();
}

AnimationGroup* AnimationGroup::recording() {
    return recordingGroup;
}

void AnimationGroup::recorded() {
    if (running_ == 0) {
        complete(finished_);
        return;
    }
    MainQueue::after(course_.delay + course_.duration,
                     [self = shared_from_this()] { self->complete(self->finished_); });
}

void AnimationGroup::animationTakenAway() {
    finished_ = false;
    // Layers end with this, so that it must not throw, as shared_from_this() might.
    if (--running_ == 0)
        MainQueue::async([self = weak_from_this().lock()] { self->complete(false); });
}

void AnimationGroup::complete(bool finished) {
    if (const auto completion = std::exchange(completion_, {}))
        completion(finished);
}
