#include "scrolling/ScrollPanGestureRecognizer.h"

#include "ObjectiveC/Class.h"
#include "scrolling/UIScrollViewPeer.h"

namespace {

const Class classObject =
    Class::define<ScrollPanGestureRecognizer, PanGestureRecognizer>("ScrollPanGestureRecognizer");

} // namespace

bool ScrollPanGestureRecognizer::shouldBegin() {
    if (scroll_.isMoving())
        return true;
    if (!scroll_.canScrollAlong(movement()))
        return false;
    const auto content = touch() != nullptr && touch()->isDelivered() ? touch()->view() : nullptr;
    return !content || content.get() == view() || scroll_.touchesShouldCancelIn(*content);
}

void ScrollPanGestureRecognizer::touchBegan(DesktopTouch& touch) {
    PanGestureRecognizer::touchBegan(touch);
    if (scroll_.isMoving())
        begin();
}
