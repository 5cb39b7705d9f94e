#include "scrolling/UIScrollViewPeer.h"

#include "RectGeometry.h"
#include "UIKit/UIControl.h"
#include "scrolling/ScrollIndicators.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// How long an animated change of the offset takes; seconds.
constexpr double offsetChangeDuration = 0.3;

} // namespace

UIScrollViewPeer::UIScrollViewPeer() : pan_(make<ScrollPanGestureRecognizer>(*this)) {}

UIScrollViewPeer::~UIScrollViewPeer() = default;

void UIScrollViewPeer::viewMade() {
    view().setClipsToBounds(true);
    pan_->addHandler([this] { panned(); });
    addGestureRecognizer(pan_);
    indicators_ = std::make_unique<ScrollIndicators>(*this);
}

CGPoint UIScrollViewPeer::contentOffset() const {
    return view().bounds().origin;
}

void UIScrollViewPeer::setContentSize(CGSize size) {
    if (contentSize_ == size)
        return;
    contentSize_ = size;
    keepWithinEdges();
}

void UIScrollViewPeer::setContentInset(const UIEdgeInsets& inset) {
    contentInset_ = inset;
    followInsets();
}

UIEdgeInsets UIScrollViewPeer::adjustedContentInset() const {
    const auto safe = safeAreaInsets();
    auto inset = contentInset_;
    inset.top += safe.top;
    inset.bottom += safe.bottom;
    return inset;
}

CGPoint UIScrollViewPeer::minimumOffset() const {
    const auto inset = adjustedContentInset();
    return {-inset.left, -inset.top};
}

CGPoint UIScrollViewPeer::maximumOffset() const {
    const auto inset = adjustedContentInset();
    const auto size = view().bounds().size;
    const auto least = minimumOffset();
    return {std::max(least.x, contentSize_.width + inset.right - size.width),
            std::max(least.y, contentSize_.height + inset.bottom - size.height)};
}

CGPoint UIScrollViewPeer::clamped(CGPoint offset) const {
    const auto least = minimumOffset();
    const auto greatest = maximumOffset();
    return {std::clamp(offset.x, least.x, greatest.x), std::clamp(offset.y, least.y, greatest.y)};
}

void UIScrollViewPeer::setContentOffset(CGPoint offset, bool animated) {
    const auto kept = retain(&view());
    stopMotion();
    if (animated && offset != contentOffset()) {
        start(ScrollMotion::ease(contentOffset().x, offset.x, offsetChangeDuration),
              ScrollMotion::ease(contentOffset().y, offset.y, offsetChangeDuration));
        return;
    }
    moveTo(offset);
    if (dragStart_) {
        const auto start = unbanded(offset);
        dragStart_ = CGPoint{start.x + pan_->translation().x, start.y + pan_->translation().y};
    }
}

void UIScrollViewPeer::scrollRectToVisible(const CGRect& rect, bool animated) {
    const auto shown = UIEdgeInsetsInsetRect(view().bounds(), adjustedContentInset());
    auto offset = contentOffset();
    offset.y += std::max(0.0, CGRectGetMaxY(rect) - CGRectGetMaxY(shown));
    offset.x += std::max(0.0, CGRectGetMaxX(rect) - CGRectGetMaxX(shown));
    offset.y = std::min(offset.y, rect.origin.y - (shown.origin.y - contentOffset().y));
    offset.x = std::min(offset.x, rect.origin.x - (shown.origin.x - contentOffset().x));
    setContentOffset(clamped(offset), animated);
}

void UIScrollViewPeer::scrollBy(CGPoint distance) {
    if (dragStart_)
        return;
    const auto kept = retain(&view());
    stopMotion();
    const auto offset = contentOffset();
    indicators_->show();
    moveTo(clamped({offset.x + distance.x, offset.y + distance.y}));
    indicators_->fade();
}

bool UIScrollViewPeer::scrollsHorizontally() const {
    return maximumOffset().x > minimumOffset().x;
}

bool UIScrollViewPeer::scrollsVertically() const {
    return alwaysBounceVertical_ || maximumOffset().y > minimumOffset().y;
}

bool UIScrollViewPeer::canScrollAlong(CGPoint movement) const {
    return std::abs(movement.x) > std::abs(movement.y) ? scrollsHorizontally() : scrollsVertically();
}

void UIScrollViewPeer::addScrollHandler(std::function<void()> handler) {
    scrollHandlers_.push_back(std::move(handler));
}

void UIScrollViewPeer::addReleaseHandler(std::function<void(CGPoint& target)> handler) {
    releaseHandlers_.push_back(std::move(handler));
}

bool UIScrollViewPeer::touchesShouldCancelIn(const UIView& content) const {
    for (const auto* inner = &content; inner != nullptr && inner != &view();
         inner = inner->peer().superview()) {
        if (dynamic_cast<const UIControl*>(inner) != nullptr)
            return false;
    }
    return true;
}

void UIScrollViewPeer::moveTo(CGPoint offset) {
    const auto scale = traits().displayScale;
    const CGPoint onPixel{std::round(offset.x * scale) / scale, std::round(offset.y * scale) / scale};
    if (onPixel == contentOffset())
        return;
    const auto kept = retain(&view());
    layer().peer().setBoundsOrigin(onPixel);
    setNeedsLayout();
    indicators_->place();
    didScroll();
    for (const auto& handler : std::vector(scrollHandlers_))
        handler();
}

void UIScrollViewPeer::keepWithinEdges() {
    if (motion_ || dragStart_)
        return;
    const auto kept = retain(&view());
    followInsets(); // first: the edges below are those of the insets there are now
    moveTo(clamped(contentOffset()));
}

void UIScrollViewPeer::followInsets() {
    if (window() == nullptr)
        return;
    const auto inset = adjustedContentInset();
    const auto before = std::exchange(followedInset_, inset);
    if (inset == before || motion_ || dragStart_)
        return;
    auto offset = contentOffset();
    offset.x += before.left - inset.left;
    offset.y += before.top - inset.top;
    moveTo(clamped(offset));
}

void UIScrollViewPeer::layoutSubviews() {
    followInsets();
    if (std::exchange(followedSize_, view().bounds().size) != view().bounds().size)
        keepWithinEdges();
    indicators_->place();
}

void UIScrollViewPeer::safeAreaInsetsDidChange() {
    followInsets();
}

void UIScrollViewPeer::didMoveToWindow() {
    if (window() != nullptr)
        followInsets();
    else if (motion_)
        comeToRest();
}

PropertyList::Dictionary UIScrollViewPeer::inspectedProperties() const {
    const auto offset = contentOffset();
    return {
        {"contentOffset", PropertyList(PropertyList::Array{PropertyList(offset.x), PropertyList(offset.y)})},
        {"contentSize", PropertyList(PropertyList::Array{PropertyList(contentSize_.width),
                                                         PropertyList(contentSize_.height)})}};
}
