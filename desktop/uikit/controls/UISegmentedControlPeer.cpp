#include "controls/UISegmentedControlPeer.h"

#include "AnimationGroup.h"
#include "DesktopColor.h"
#include "RectGeometry.h"
#include "touches/DesktopTouch.h"
#include "views/UILabelPeer.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace {

constexpr double trackCorner = 9;
constexpr double thumbCorner = 7;
constexpr double thumbInset = 2;
constexpr double dividerInset = 6;
constexpr double fontSize = 13;
constexpr double textMargin = 4;
constexpr double pressedScale = 0.95;
constexpr double disabledAlpha = 0.5;
constexpr std::chrono::milliseconds slideDuration{410};

void run(const std::function<void()>& changes) {
    AnimationGroup::run(
        {.duration = slideDuration, .curve = AnimationCurve::system(), .fromCurrentState = true}, changes,
        {});
}

/// White, or gray in the dark.
class ThumbPeer final : public UIViewPeer {
public:
    void traitsDidChange() override {
        UIViewPeer::traitsDidChange();
        constexpr ColorComponents white{1, 1, 1, 1};
        constexpr ColorComponents gray{99 / 255.0, 99 / 255.0, 102 / 255.0, 1};
        view().setBackgroundColor(
            DesktopColor::fixed(traits().style == UserInterfaceStyle::Dark ? gray : white));
    }
};

class ThumbView final : public UIView {
public:
    ThumbView() : UIView(std::make_unique<ThumbPeer>()) {}
};

Ref<UIView> makeThumb() {
    const Ref<UIView> thumb = make<ThumbView>();
    thumb->setUserInteractionEnabled(false);
    thumb->peer().traitsDidChange();
    auto& layer = thumb->layer();
    layer.setCornerRadius(thumbCorner);
    layer.setShadowColor(DesktopColor::fixed({0, 0, 0, 1}));
    layer.setShadowOffset({0, 3});
    layer.setShadowRadius(4);
    layer.setShadowOpacity(0.12);
    return thumb;
}

Ref<UIView> makeDivider() {
    const auto divider = make<UIView>();
    divider->setUserInteractionEnabled(false);
    divider->setBackgroundColor(DesktopColor::fixed({142 / 255.0, 142 / 255.0, 147 / 255.0, 0.3}));
    return divider;
}

Ref<UILabel> makeTitle(const std::string& title) {
    const auto label = make<UILabel>();
    label->setUserInteractionEnabled(false);
    label->setText(title);
    label->setTextAlignment(NSTextAlignment::Center);
    return label;
}

} // namespace

void UISegmentedControlPeer::setUp() {
    view().setBackgroundColor(DesktopColor::system(SystemColor::TertiaryFill));
    layer().setCornerRadius(trackCorner);
    thumb_ = makeThumb();
    addSubview(thumb_);
    showState();
}

void UISegmentedControlPeer::setTitles(const std::vector<std::string>& titles) {
    giveUp();
    for (const auto& label : std::exchange(labels_, {}))
        label->peer().removeFromSuperview();
    for (const auto& divider : std::exchange(dividers_, {}))
        divider->peer().removeFromSuperview();
    selected_.reset();
    for (const auto& title : titles) {
        labels_.push_back(makeTitle(title));
        addSubview(labels_.back());
    }
    for (std::size_t index = 1; index < labels_.size(); ++index) {
        dividers_.push_back(makeDivider());
        insertSubview(dividers_.back(), 0);
    }
    showState();
    setNeedsLayout();
}

void UISegmentedControlPeer::setSelected(std::optional<std::size_t> index, bool animated) {
    const auto known = index && *index < labels_.size() ? index : std::nullopt;
    const auto hadOne = selected_.has_value();
    if (std::exchange(selected_, known) == known)
        return;
    if (animated && hadOne && known)
        run([this] { place(); });
    else
        place();
    showState();
}

CGRect UISegmentedControlPeer::segmentFrame(std::size_t index) const {
    const auto bounds = view().bounds();
    const auto width = bounds.size.width / static_cast<double>(labels_.size());
    return CGRectMake(static_cast<double>(index) * width, 0, width, bounds.size.height);
}

std::size_t UISegmentedControlPeer::segmentAt(const DesktopTouch& touch) const {
    const auto part = fromLeading(touch.locationInView(view())).x / std::max(1.0, view().bounds().size.width);
    const auto count = static_cast<double>(labels_.size());
    return static_cast<std::size_t>(std::clamp(part * count, 0.0, std::max(0.0, count - 1)));
}

void UISegmentedControlPeer::place() {
    const auto hairline = 1 / traits().displayScale;
    for (std::size_t index = 0; index < labels_.size(); ++index) {
        auto frame = segmentFrame(index);
        frame.origin.x += textMargin;
        frame.size.width = std::max(0.0, frame.size.width - 2 * textMargin);
        UIViewPeer::place(*labels_[index], frame);
    }
    for (std::size_t index = 0; index < dividers_.size(); ++index) {
        const auto frame = segmentFrame(index);
        const auto isBesideThumb = selected_ == index || selected_ == index + 1;
        UIViewPeer::place(*dividers_[index],
                          CGRectMake(CGRectGetMaxX(frame), dividerInset, std::max(1.0, hairline),
                                     std::max(0.0, frame.size.height - 2 * dividerInset)));
        dividers_[index]->setAlpha(isBesideThumb ? 0 : 1);
    }
    placeThumb();
}

void UISegmentedControlPeer::placeThumb() {
    thumb_->peer().setHidden(!selected_.has_value());
    if (!selected_)
        return;
    const auto frame = segmentFrame(*selected_);
    thumb_->peer().setBounds({{},
                              {std::max(0.0, frame.size.width - 2 * thumbInset),
                               std::max(0.0, frame.size.height - 2 * thumbInset)}});
    thumb_->setCenter(fromLeading(CGPoint{CGRectGetMidX(frame), CGRectGetMidY(frame)}));
    const auto scale = press_ && press_->carries ? pressedScale : 1;
    thumb_->peer().setTransform(AffineTransform::scale(scale));
}

void UISegmentedControlPeer::showState() {
    for (std::size_t index = 0; index < labels_.size(); ++index) {
        const auto chosen = selected_ == index;
        auto& label = peerOf<UILabelPeer>(*labels_[index]);
        label.setFontStyle({.size = fontSize, .weight = chosen ? FontWeight::Semibold : FontWeight::Medium});
        label.setAccessibility(
            {.label = {}, .value = chosen ? "1" : "0", .role = AccessibilityRole::Choice, .isElement = true});
    }
}

void UISegmentedControlPeer::layoutSubviews() {
    place();
}

void UISegmentedControlPeer::stateDidChange() {
    view().setAlpha(isEnabled() ? 1 : disabledAlpha);
    if (!isEnabled())
        giveUp();
}

void UISegmentedControlPeer::touchBegan(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchBegan(touch, event);
    if (!isTracking() || press_ || labels_.empty())
        return;
    press_ = Press{.chosenBefore = selected_, .carries = selected_ == segmentAt(touch)};
    run([this] { placeThumb(); });
}

void UISegmentedControlPeer::touchMoved(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchMoved(touch, event);
    if (press_ && press_->carries)
        setSelected(segmentAt(touch), true);
}

void UISegmentedControlPeer::touchEnded(DesktopTouch& touch, UIEvent& event) {
    const auto kept = retain(&control());
    const auto press = std::exchange(press_, std::nullopt);
    const auto lifted = segmentAt(touch);
    const auto inside = isInside(touch);
    UIControlPeer::touchEnded(touch, event);
    if (!press)
        return;
    if (!press->carries && inside)
        setSelected(lifted, true);
    run([this] { placeThumb(); });
    if (selected_ != press->chosenBefore)
        sendActions(UIControlEvents::ValueChanged, nullptr);
}

void UISegmentedControlPeer::touchCancelled(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchCancelled(touch, event);
    giveUp();
}

void UISegmentedControlPeer::giveUp() {
    const auto press = std::exchange(press_, std::nullopt);
    if (!press)
        return;
    setSelected(press->chosenBefore, true);
    placeThumb();
}

CGSize UISegmentedControlPeer::sizeThatFits(CGSize room) const {
    return {room.width, height};
}

std::optional<double> UISegmentedControlPeer::intrinsicHeight() const {
    return height;
}

Accessibility UISegmentedControlPeer::accessibility() const {
    auto told = UIControlPeer::accessibility();
    told.role = AccessibilityRole::None;
    told.isElement = false;
    return told;
}

PropertyList::Dictionary UISegmentedControlPeer::inspectedProperties() const {
    auto properties = UIControlPeer::inspectedProperties();
    properties.insert_or_assign("selectedSegmentIndex",
                                selected_ ? static_cast<std::int64_t>(*selected_) : std::int64_t{-1});
    return properties;
}
