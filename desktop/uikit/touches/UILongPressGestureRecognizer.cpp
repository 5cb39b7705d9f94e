#include "touches/UILongPressGestureRecognizer.h"

#include "ObjectiveC/Class.h"

#include <cmath>

namespace {

const Class classObject =
    Class::define<UILongPressGestureRecognizer, GestureRecognizer>("UILongPressGestureRecognizer");

/// How far the finger may stray before the press is one; points.
constexpr double slop = 10;

} // namespace

void UILongPressGestureRecognizer::touchBegan(DesktopTouch& touch) {
    start_ = touch.place();
    setTimer(duration_);
}

void UILongPressGestureRecognizer::touchMoved(DesktopTouch& touch) {
    if (std::hypot(touch.place().x - start_.x, touch.place().y - start_.y) > slop)
        fail();
    change();
}

void UILongPressGestureRecognizer::touchEnded(DesktopTouch& /*touch*/) {
    end();
    fail();
}
