#include "touches/TapGestureRecognizer.h"

#include "ObjectiveC/Class.h"

#include <cmath>

namespace {

const Class classObject = Class::define<TapGestureRecognizer, GestureRecognizer>("TapGestureRecognizer");

/// How far the finger may stray from where it first came down; points.
constexpr double slop = 10;
/// Within what time the finger comes down for the next tap.
constexpr std::chrono::milliseconds longestGap{350};

} // namespace

void TapGestureRecognizer::touchBegan(DesktopTouch& touch) {
    stopTimer();
    if (taps_ == 0)
        start_ = touch.place();
    touchMoved(touch);
}

void TapGestureRecognizer::touchMoved(DesktopTouch& touch) {
    if (std::hypot(touch.place().x - start_.x, touch.place().y - start_.y) > slop)
        fail();
}

void TapGestureRecognizer::touchEnded(DesktopTouch& touch) {
    touchMoved(touch);
    if (state() != State::Possible)
        return;
    ++taps_;
    if (taps_ >= required_)
        recognize();
    else
        setTimer(longestGap);
}
