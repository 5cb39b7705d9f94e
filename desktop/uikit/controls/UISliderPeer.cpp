#include "controls/UISliderPeer.h"

#include "DesktopColor.h"
#include "RectGeometry.h"
#include "touches/DesktopTouch.h"

#include <QString>
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <utility>

namespace {

constexpr double thumbSize = 28;
constexpr double trackHeight = 4;
constexpr double gripSize = 44; ///< of the square around the thumb that takes it
constexpr double imageSize = 21;
constexpr double imageGap = 8;
constexpr double disabledAlpha = 0.5;
constexpr int stepsOfKeys = 10; ///< from end to end, where there are no segments

struct Shadow {
    double offset;
    double radius;
};

constexpr Shadow wideShadow{6, 6.5};
constexpr Shadow narrowShadow{0.5, 2};
constexpr double shadowOpacity = 0.12;

Ref<UIView> roundedView(double cornerRadius) {
    const auto view = make<UIView>();
    view->setUserInteractionEnabled(false);
    view->layer().setCornerRadius(cornerRadius);
    return view;
}

Ref<UIView> thumbView(const Shadow& shadow) {
    const auto view = roundedView(thumbSize / 2);
    view->setBackgroundColor(DesktopColor::fixed({1, 1, 1, 1}));
    auto& layer = view->layer();
    layer.setShadowColor(DesktopColor::fixed({0, 0, 0, 1}));
    layer.setShadowOffset({0, shadow.offset});
    layer.setShadowRadius(shadow.radius);
    layer.setShadowOpacity(shadowOpacity);
    return view;
}

double roomFor(const UIImageView& view) {
    return view.image() ? imageSize + imageGap : 0;
}

} // namespace

void UISliderPeer::setUp() {
    track_ = roundedView(trackHeight / 2);
    filled_ = roundedView(trackHeight / 2);
    shade_ = thumbView(wideShadow);
    thumb_ = thumbView(narrowShadow);
    leftImage_ = make<UIImageView>();
    rightImage_ = make<UIImageView>();
    track_->setBackgroundColor(DesktopColor::system(SystemColor::Fill));
    for (const auto& view : {leftImage_, rightImage_}) {
        view->setContentMode(UIViewContentMode::ScaleAspectFit);
        view->setUserInteractionEnabled(false);
        addSubview(view);
    }
    for (const auto& view : {track_, filled_, shade_, thumb_})
        addSubview(view);
    filled_->setBackgroundColor(tintColor());
}

void UISliderPeer::setValue(double value) {
    const auto kept = std::clamp(value, least_, greatest_);
    if (std::equal_to()(std::exchange(value_, kept), kept))
        return;
    place();
}

void UISliderPeer::setRange(double least, double greatest) {
    least_ = least;
    greatest_ = std::max(least, greatest);
    value_ = std::clamp(value_, least_, greatest_);
    place();
}

void UISliderPeer::setSegmentCount(int count) {
    segmentCount_ = std::max(0, count);
}

void UISliderPeer::setImages(const Ref<UIImage>& left, const Ref<UIImage>& right) {
    leftImage_->setImage(left);
    rightImage_->setImage(right);
    setNeedsLayout();
}

double UISliderPeer::part() const {
    return greatest_ > least_ ? (value_ - least_) / (greatest_ - least_) : 0;
}

double UISliderPeer::nearestStop(double value) const {
    if (segmentCount_ == 0 || greatest_ <= least_)
        return value;
    const auto step = (greatest_ - least_) / segmentCount_;
    return least_ + std::round((value - least_) / step) * step;
}

// Where things are.

CGRect UISliderPeer::trackFrame() const {
    const auto bounds = view().bounds();
    const auto left = roomFor(*leftImage_);
    return CGRectMake(left, CGRectGetMidY(bounds) - trackHeight / 2,
                      std::max(0.0, bounds.size.width - left - roomFor(*rightImage_)), trackHeight);
}

CGRect UISliderPeer::thumbFrame() const {
    const auto track = trackFrame();
    const auto way = std::max(0.0, track.size.width - thumbSize);
    return CGRectMake(track.origin.x + part() * way, CGRectGetMidY(track) - thumbSize / 2, thumbSize,
                      thumbSize);
}

void UISliderPeer::place() {
    const auto track = trackFrame();
    const auto thumb = thumbFrame();
    auto filled = track;
    filled.size.width = std::clamp(CGRectGetMidX(thumb) - track.origin.x, 0.0, track.size.width);
    UIViewPeer::place(*track_, track);
    UIViewPeer::place(*filled_, filled);
    UIViewPeer::place(*shade_, thumb);
    UIViewPeer::place(*thumb_, thumb);
}

void UISliderPeer::placeImages() {
    const auto bounds = view().bounds();
    const auto top = CGRectGetMidY(bounds) - imageSize / 2;
    UIViewPeer::place(*leftImage_, CGRectMake(0, top, imageSize, imageSize));
    UIViewPeer::place(*rightImage_, CGRectMake(bounds.size.width - imageSize, top, imageSize, imageSize));
}

void UISliderPeer::layoutSubviews() {
    placeImages();
    place();
}

void UISliderPeer::tintColorDidChange() {
    UIControlPeer::tintColorDidChange();
    if (filled_)
        filled_->setBackgroundColor(tintColor());
}

void UISliderPeer::stateDidChange() {
    view().setAlpha(isEnabled() ? 1 : disabledAlpha);
}

CGSize UISliderPeer::sizeThatFits(CGSize room) const {
    return {room.width, height};
}

std::optional<double> UISliderPeer::intrinsicHeight() const {
    return height;
}

// The finger.

void UISliderPeer::touchBegan(DesktopTouch& touch, UIEvent& event) {
    const auto place = fromLeading(touch.locationInView(view()));
    const auto thumb = thumbFrame();
    constexpr auto around = (gripSize - thumbSize) / 2;
    const auto grip = CGRectMake(thumb.origin.x - around, thumb.origin.y - around, gripSize, gripSize);
    if (grip_ || !CGRectContainsPoint(grip, place))
        return;
    UIControlPeer::touchBegan(touch, event);
    if (isTracking())
        grip_ = Grip{.offset = place.x - CGRectGetMidX(thumb), .start = value_};
}

void UISliderPeer::touchMoved(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchMoved(touch, event);
    follow(touch);
}

void UISliderPeer::follow(const DesktopTouch& touch) {
    const auto track = trackFrame();
    const auto way = track.size.width - thumbSize;
    if (!grip_ || way <= 0)
        return;
    const auto middle = fromLeading(touch.locationInView(view())).x - grip_->offset;
    const auto part = std::clamp((middle - thumbSize / 2 - track.origin.x) / way, 0.0, 1.0);
    const auto before = value_;
    setValue(nearestStop(least_ + part * (greatest_ - least_)));
    if (continuous_ && !std::equal_to()(before, value_))
        sendActions(UIControlEvents::ValueChanged, nullptr);
}

void UISliderPeer::touchEnded(DesktopTouch& touch, UIEvent& event) {
    const auto kept = retain(&control());
    follow(touch);
    const auto grip = std::exchange(grip_, std::nullopt);
    UIControlPeer::touchEnded(touch, event);
    if (grip && !continuous_ && !std::equal_to()(grip->start, value_))
        sendActions(UIControlEvents::ValueChanged, nullptr);
}

void UISliderPeer::touchCancelled(DesktopTouch& touch, UIEvent& event) {
    const auto kept = retain(&control());
    const auto grip = std::exchange(grip_, std::nullopt);
    UIControlPeer::touchCancelled(touch, event);
    if (!grip || std::equal_to()(grip->start, value_))
        return;
    setValue(grip->start);
    if (continuous_)
        sendActions(UIControlEvents::ValueChanged, nullptr);
}

void UISliderPeer::adjust(bool up) {
    if (!isEnabled())
        return;
    const auto steps = segmentCount_ > 0 ? segmentCount_ : stepsOfKeys;
    const auto step = (greatest_ - least_) / steps;
    const auto before = value_;
    setValue(nearestStop(value_ + (up ? step : -step)));
    if (!std::equal_to()(before, value_))
        sendActions(UIControlEvents::ValueChanged, nullptr);
}

// What it tells of itself.

Accessibility UISliderPeer::accessibility() const {
    constexpr double percent = 100;
    auto told = UIControlPeer::accessibility();
    told.role = AccessibilityRole::Slider;
    if (told.value.empty())
        told.value = QString::number(std::lround(part() * percent)).toStdString() + "%";
    return told;
}

PropertyList::Dictionary UISliderPeer::inspectedProperties() const {
    auto properties = UIControlPeer::inspectedProperties();
    properties.insert_or_assign("value", value_);
    properties.insert_or_assign("minimumValue", least_);
    properties.insert_or_assign("maximumValue", greatest_);
    return properties;
}
