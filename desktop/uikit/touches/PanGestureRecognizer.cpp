#include "touches/PanGestureRecognizer.h"

#include "ObjectiveC/Class.h"

#include <cmath>

namespace {

const Class classObject = Class::define<PanGestureRecognizer, GestureRecognizer>("PanGestureRecognizer");

/// What is older tells nothing of the speed.
constexpr std::chrono::milliseconds speedWindow{100};

} // namespace

CGPoint PanGestureRecognizer::translation() const {
    return {movement().x - slopUsed_.x, movement().y - slopUsed_.y};
}

CGPoint PanGestureRecognizer::movement() const {
    return {location().x - start_.x, location().y - start_.y};
}

CGPoint PanGestureRecognizer::velocity() const {
    if (samples_.size() < 2)
        return {};
    const auto& first = samples_.front();
    const auto& last = samples_.back();
    const auto seconds = std::chrono::duration<double>(last.time - first.time).count();
    if (seconds <= 0)
        return {};
    return {(last.place.x - first.place.x) / seconds, (last.place.y - first.place.y) / seconds};
}

void PanGestureRecognizer::touchBegan(DesktopTouch& touch) {
    start_ = touch.place();
    record(touch);
}

void PanGestureRecognizer::touchMoved(DesktopTouch& touch) {
    record(touch);
    if (state() != State::Possible) {
        change();
        return;
    }
    const auto distance = std::hypot(movement().x, movement().y);
    if (distance < slop)
        return;
    slopUsed_ = {movement().x * slop / distance, movement().y * slop / distance};
    begin();
}

void PanGestureRecognizer::touchEnded(DesktopTouch& touch) {
    record(touch);
    end();
    fail();
}

void PanGestureRecognizer::didReset() {
    slopUsed_ = {};
    samples_.clear();
}

void PanGestureRecognizer::record(const DesktopTouch& touch) {
    std::erase_if(samples_,
                  [now = touch.time()](const Sample& sample) { return sample.time < now - speedWindow; });
    samples_.push_back({touch.place(), touch.time()});
}
