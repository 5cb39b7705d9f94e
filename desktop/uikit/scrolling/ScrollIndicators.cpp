#include "scrolling/ScrollIndicators.h"

#include "AnimationGroup.h"
#include "DesktopColor.h"
#include "RectGeometry.h"
#include "scrolling/UIScrollViewPeer.h"

#include <algorithm>

namespace {

constexpr double thickness = 3;
/// From the bar to the edge beside it and to those at its ends.
constexpr double margin = 3;
constexpr double leastLength = 36;
/// Of a bar that contents drawn beyond an edge press together.
constexpr double leastPressedLength = 8;
constexpr std::chrono::milliseconds fadeDelay{250};
constexpr std::chrono::milliseconds fadeDuration{250};

Ref<UIView> makeBar() {
    auto bar = make<UIView>();
    bar->setUserInteractionEnabled(false);
    bar->setBackgroundColor(DesktopColor::system(SystemColor::TertiaryLabel));
    bar->layer().setCornerRadius(thickness / 2);
    bar->setAlpha(0);
    return bar;
}

/// Where a bar lies along its axis.
struct Extent {
    double begin;
    double length;
};

/// \param room of the track; \param seen, total what is in view of the contents and all of them
/// \param offset from `least` to `greatest`, or beyond
Extent extentOf(Extent room, double seen, double total, double offset, double least, double greatest) {
    const auto overrun = std::max({0.0, least - offset, offset - greatest});
    const auto natural =
        std::clamp(room.length * seen / total, std::min(leastLength, room.length), room.length);
    const auto length = std::max(std::min(leastPressedLength, room.length), natural - overrun);
    const auto progress = std::clamp((offset - least) / (greatest - least), 0.0, 1.0);
    return {.begin = room.begin + (room.length - length) * progress, .length = length};
}

} // namespace

ScrollIndicators::ScrollIndicators(UIScrollViewPeer& scroll)
    : scroll_(scroll),
      vertical_(makeBar()),
      horizontal_(makeBar()) {
    scroll_.addSubview(vertical_);
    scroll_.addSubview(horizontal_);
}

void ScrollIndicators::place() {
    const auto least = scroll_.minimumOffset();
    const auto greatest = scroll_.maximumOffset();
    const auto inset = scroll_.adjustedContentInset();
    const auto bounds = scroll_.view().bounds();
    const auto room = UIEdgeInsetsInsetRect(bounds, inset);
    const auto content = scroll_.contentSize();
    vertical_->peer().setHidden(greatest.y <= least.y);
    horizontal_->peer().setHidden(greatest.x <= least.x);
    if (greatest.y > least.y) {
        const auto extent =
            extentOf({.begin = room.origin.y + margin, .length = room.size.height - 2 * margin},
                     room.size.height, content.height, bounds.origin.y, least.y, greatest.y);
        const auto x =
            scroll_.isRightToLeft() ? room.origin.x + margin : CGRectGetMaxX(room) - margin - thickness;
        vertical_->setFrame(CGRectMake(x, extent.begin, thickness, std::max(0.0, extent.length)));
    }
    if (greatest.x > least.x) {
        const auto extent =
            extentOf({.begin = room.origin.x + margin, .length = room.size.width - 2 * margin},
                     room.size.width, content.width, bounds.origin.x, least.x, greatest.x);
        horizontal_->setFrame(CGRectMake(extent.begin, CGRectGetMaxY(room) - margin - thickness,
                                         std::max(0.0, extent.length), thickness));
    }
}

void ScrollIndicators::show() {
    scroll_.bringSubviewToFront(*horizontal_);
    scroll_.bringSubviewToFront(*vertical_);
    place();
    AnimationGroup::runWithoutAnimation([this] { setAlpha(1); });
}

void ScrollIndicators::fade() {
    AnimationGroup::run({.duration = fadeDuration, .delay = fadeDelay}, [this] { setAlpha(0); }, {});
}

void ScrollIndicators::setAlpha(double alpha) {
    for (const auto* bar : {&vertical_, &horizontal_}) {
        (*bar)->layer().peer().removeAllAnimations();
        (*bar)->setAlpha(alpha);
    }
}
