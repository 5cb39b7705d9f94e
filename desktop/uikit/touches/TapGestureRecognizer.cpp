#include "touches/TapGestureRecognizer.h"

#include "ObjectiveC/Class.h"

#include <cmath>

namespace {

const Class classObject = Class::define<TapGestureRecognizer, GestureRecognizer>("TapGestureRecognizer");

/// How far the finger may stray from where it first came down; points.
constexpr double slop = 10;

} // namespace

void TapGestureRecognizer::touchBegan(DesktopTouch& touch) {
    start_ = touch.place();
}

void TapGestureRecognizer::touchMoved(DesktopTouch& touch) {
    if (std::hypot(touch.place().x - start_.x, touch.place().y - start_.y) > slop)
        fail();
}

void TapGestureRecognizer::touchEnded(DesktopTouch& touch) {
    touchMoved(touch);
    recognize();
}
