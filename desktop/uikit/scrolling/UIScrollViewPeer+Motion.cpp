#include "AnimationGroup.h"
#include "Device.h"
#include "Dispatch/MainQueue.h"
#include "scrolling/ScrollIndicators.h"
#include "scrolling/UIScrollViewPeer.h"

#include <algorithm>
#include <cmath>

namespace {

/// Between two pictures of contents that move, on a display of 120 a second.
constexpr std::chrono::nanoseconds tickLength = std::chrono::nanoseconds(std::chrono::seconds(1)) / 120;

std::chrono::nanoseconds now() {
    return Device::current().clock().uptime();
}

/// A place along one axis with what lies beyond the edges seen through `change`.
double withOverrun(double place, double least, double greatest, double length,
                   double (*change)(double distance, double length)) {
    const auto edge = std::clamp(place, least, greatest);
    const auto overrun = change(std::abs(place - edge), length);
    return place < edge ? edge - overrun : edge + overrun;
}

} // namespace

CGPoint UIScrollViewPeer::banded(CGPoint offset) const {
    const auto least = minimumOffset();
    const auto greatest = maximumOffset();
    const auto size = view().bounds().size;
    return {withOverrun(offset.x, least.x, greatest.x, size.width, &ScrollMotion::banded),
            withOverrun(offset.y, least.y, greatest.y, size.height, &ScrollMotion::banded)};
}

CGPoint UIScrollViewPeer::unbanded(CGPoint offset) const {
    const auto least = minimumOffset();
    const auto greatest = maximumOffset();
    const auto size = view().bounds().size;
    return {withOverrun(offset.x, least.x, greatest.x, size.width, &ScrollMotion::unbanded),
            withOverrun(offset.y, least.y, greatest.y, size.height, &ScrollMotion::unbanded)};
}

void UIScrollViewPeer::panned() {
    using enum GestureRecognizer::State;
    const auto kept = retain(&view());
    if (pan_->state() == Began)
        beginDrag();
    if (pan_->state() == Ended)
        endDrag({-pan_->velocity().x, -pan_->velocity().y});
    else if (pan_->state() == Cancelled)
        endDrag({});
    else
        drag();
}

void UIScrollViewPeer::beginDrag() {
    stopMotion();
    dragStart_ = unbanded(contentOffset());
    indicators_->show();
}

void UIScrollViewPeer::drag() {
    if (!dragStart_)
        return;
    const auto moved = pan_->translation();
    auto offset = contentOffset();
    const auto wanted = banded({dragStart_->x - moved.x, dragStart_->y - moved.y});
    if (scrollsHorizontally())
        offset.x = wanted.x;
    if (scrollsVertically())
        offset.y = wanted.y;
    moveTo(offset);
}

void UIScrollViewPeer::endDrag(CGPoint velocity) {
    if (!dragStart_)
        return;
    drag();
    dragStart_.reset();
    if (!scrollsHorizontally())
        velocity.x = 0;
    if (!scrollsVertically())
        velocity.y = 0;
    const auto from = contentOffset();
    const CGPoint natural{ScrollMotion::glideEnd(from.x, velocity.x),
                          ScrollMotion::glideEnd(from.y, velocity.y)};
    const auto within = clamped(natural);
    auto target = within;
    for (const auto& handler : std::vector(releaseHandlers_))
        handler(target);
    const auto least = minimumOffset();
    const auto greatest = maximumOffset();
    const auto goal = [](double chosen, double proposed, double free) {
        return chosen == proposed ? free : chosen;
    };
    start(ScrollMotion::glide(from.x, goal(target.x, within.x, natural.x), least.x, greatest.x),
          ScrollMotion::glide(from.y, goal(target.y, within.y, natural.y), least.y, greatest.y));
}

void UIScrollViewPeer::start(const ScrollMotion& x, const ScrollMotion& y) {
    motion_ = Motion{.x = x, .y = y, .begin = now()};
    ++ticking_;
    if (x.isOverAt(0) && y.isOverAt(0))
        comeToRest();
    else
        scheduleTick();
}

void UIScrollViewPeer::scheduleTick() {
    MainQueue::after(tickLength, [weak = Weak<UIView>(&view()), this, ticking = ticking_] {
        const auto kept = weak.strong();
        if (kept && ticking_ == ticking)
            tick();
    });
}

void UIScrollViewPeer::tick() {
    if (!motion_)
        return;
    const auto [x, y, begin] = *motion_;
    const auto time = std::chrono::duration<double>(now() - begin).count();
    if (x.isOverAt(time) && y.isOverAt(time)) {
        comeToRest();
        return;
    }
    const auto ticking = ticking_;
    AnimationGroup::runWithoutAnimation([&] { moveTo({x.at(time), y.at(time)}); });
    if (motion_ && ticking_ == ticking)
        scheduleTick();
}

void UIScrollViewPeer::comeToRest() {
    if (!motion_)
        return;
    const auto kept = retain(&view());
    const CGPoint rest{motion_->x.rest(), motion_->y.rest()};
    motion_.reset();
    AnimationGroup::runWithoutAnimation([&] { moveTo(rest); });
    if (!motion_ && !dragStart_)
        indicators_->fade();
}

void UIScrollViewPeer::stopMotion() {
    if (!motion_)
        return;
    motion_.reset();
    indicators_->fade();
}
