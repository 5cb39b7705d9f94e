#include "controls/UISwitchPeer.h"

#include "AnimationGroup.h"
#include "DesktopColor.h"
#include "touches/DesktopTouch.h"

#include <cmath>
#include <string>
#include <utility>

namespace {

constexpr double thumbSize = 27;
constexpr double pressedThumbWidth = 34;
constexpr double thumbInset = 2;
constexpr double disabledAlpha = 0.5;
constexpr double tapSlop = 10;
constexpr std::chrono::milliseconds slideDuration{250};

struct Shadow {
    double offset;
    double radius;
    double opacity;
};

constexpr Shadow wideShadow{3, 4, 0.15};
constexpr Shadow narrowShadow{3, 0.5, 0.06};

Ref<UIView> thumbView(const Shadow& shadow) {
    const auto view = make<UIView>();
    view->setUserInteractionEnabled(false);
    view->setBackgroundColor(DesktopColor::fixed({1, 1, 1, 1}));
    auto& layer = view->layer();
    layer.setCornerRadius(thumbSize / 2);
    layer.setShadowColor(DesktopColor::fixed({0, 0, 0, 1}));
    layer.setShadowOffset({0, shadow.offset});
    layer.setShadowRadius(shadow.radius);
    layer.setShadowOpacity(shadow.opacity);
    return view;
}

} // namespace

void UISwitchPeer::setUp() {
    setBounds({{}, size});
    track_ = make<UIView>();
    track_->setUserInteractionEnabled(false);
    track_->setFrame({{}, size});
    track_->layer().setCornerRadius(size.height / 2);
    shade_ = thumbView(wideShadow);
    thumb_ = thumbView(narrowShadow);
    for (const auto& part : {track_, shade_, thumb_})
        addSubview(part);
    show();
}

void UISwitchPeer::setOn(bool on, bool animated) {
    if (std::exchange(on_, on) == on)
        return;
    if (animated)
        showAnimated();
    else
        show();
}

CGRect UISwitchPeer::thumbFrame() const {
    const auto width = tracking_ ? pressedThumbWidth : thumbSize;
    const auto left = on_ ? size.width - thumbInset - width : thumbInset;
    return CGRectMake(left, thumbInset, width, thumbSize);
}

void UISwitchPeer::show() {
    track_->setBackgroundColor(DesktopColor::system(on_ ? SystemColor::Green : SystemColor::SecondaryFill));
    for (const auto& part : {shade_, thumb_})
        place(*part, thumbFrame());
}

void UISwitchPeer::showAnimated() {
    AnimationGroup::run({.duration = slideDuration}, [this] { show(); }, {});
}

void UISwitchPeer::touchBegan(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchBegan(touch, event);
    if (!isTracking() || tracking_)
        return;
    tracking_ = {.start = fromLeading(touch.locationInView(view())).x, .onAtStart = on_};
    showAnimated();
}

void UISwitchPeer::touchMoved(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchMoved(touch, event);
    follow(touch);
}

void UISwitchPeer::touchEnded(DesktopTouch& touch, UIEvent& event) {
    follow(touch);
    UIControlPeer::touchEnded(touch, event);
    release();
}

void UISwitchPeer::touchCancelled(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchCancelled(touch, event);
    giveUp();
}

void UISwitchPeer::follow(const DesktopTouch& touch) {
    if (!tracking_)
        return;
    const auto place = fromLeading(touch.locationInView(view())).x;
    tracking_->moved = tracking_->moved || std::abs(place - tracking_->start) >= tapSlop;
    if (tracking_->moved)
        setOn(place >= size.width / 2, true);
}

void UISwitchPeer::release() {
    const auto tracking = std::exchange(tracking_, std::nullopt);
    if (!tracking)
        return;
    if (!tracking->moved)
        on_ = !on_;
    showAnimated();
    if (on_ != tracking->onAtStart)
        sendActions(UIControlEvents::ValueChanged, nullptr);
}

void UISwitchPeer::giveUp() {
    const auto tracking = std::exchange(tracking_, std::nullopt);
    if (!tracking)
        return;
    on_ = tracking->onAtStart;
    showAnimated();
}

void UISwitchPeer::stateDidChange() {
    view().setAlpha(isEnabled() ? 1 : disabledAlpha);
    if (!isEnabled())
        giveUp();
}

void UISwitchPeer::traitsDidChange() {
    UIControlPeer::traitsDidChange();
    if (thumb_)
        show();
}

void UISwitchPeer::layoutSubviews() {
    if (view().bounds().size != size)
        view().setFrame({view().frame().origin, size});
}

CGSize UISwitchPeer::sizeThatFits(CGSize /*room*/) const {
    return size;
}

std::optional<double> UISwitchPeer::intrinsicWidth() const {
    constexpr auto withoutTheOutline = 2;
    return size.width - withoutTheOutline;
}

std::optional<double> UISwitchPeer::intrinsicHeight() const {
    return size.height;
}

Accessibility UISwitchPeer::accessibility() const {
    auto told = UIControlPeer::accessibility();
    told.role = AccessibilityRole::Switch;
    told.value = std::to_string(int{on_});
    told.isElement = true;
    return told;
}

PropertyList::Dictionary UISwitchPeer::inspectedProperties() const {
    auto properties = UIControlPeer::inspectedProperties();
    properties.insert_or_assign("on", on_);
    return properties;
}
