#include "controls/UIButtonPeer.h"

#include "AnimationGroup.h"
#include "DesktopColor.h"
#include "DesktopImage.h"
#include "RectGeometry.h"
#include "SystemTexts.h"
#include "views/UIImageViewPeer.h"
#include "views/UILabelPeer.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr FontStyle systemStyle{.size = 15};
/// Buttons are never smaller, so that a finger finds them.
constexpr double leastSide = 30;
constexpr double infoSymbolSize = 19; ///< the points that the symbol is set in
constexpr double pressedAlpha = 0.2;
constexpr std::chrono::milliseconds releaseTime{250};

} // namespace

UIButtonPeer::UIButtonPeer() : titleLabel_(make<UILabel>()), imageView_(make<UIImageView>()) {}

void UIButtonPeer::viewMade() {
    titleLabel_->setUserInteractionEnabled(false);
    titleLabel_->setTextAlignment(NSTextAlignment::Center);
    imageView_->setUserInteractionEnabled(false);
    addSubview(imageView_);
    addSubview(titleLabel_);
    peerOf<UILabelPeer>(*titleLabel_).setFontStyle(systemStyle);
    updateColors();
}

void UIButtonPeer::becomeOfType(UIButtonType type) {
    if (type != UIButtonType::InfoDark)
        return;
    setImage(DesktopImage::symbol("info.circle", infoSymbolSize));
    setAccessibility({.label = systemText("More Info"),
                      .value = {},
                      .role = AccessibilityRole::Button,
                      .isElement = true});
}

void UIButtonPeer::setTitle(const std::optional<std::string>& title) {
    titleLabel_->setText(title);
    contentDidChange();
}

void UIButtonPeer::setImage(const Ref<UIImage>& image) {
    imageView_->setImage(image);
    contentDidChange();
}

void UIButtonPeer::setImageInsets(const UIEdgeInsets& insets) {
    imageInsets_ = insets;
    setNeedsLayout();
}

void UIButtonPeer::setFontStyle(const FontStyle& style) {
    peerOf<UILabelPeer>(*titleLabel_).setFontStyle(style);
    contentDidChange();
}

void UIButtonPeer::setTitleColor(const Ref<UIColor>& color) {
    titleColor_ = color;
    updateColors();
}

void UIButtonPeer::stateDidChange() {
    updateColors();
    updatePressedLook();
}

void UIButtonPeer::updateColors() {
    const auto disabled = DesktopColor::system(SystemColor::TertiaryLabel);
    const auto enabled = titleColor_ ? titleColor_ : tintColor();
    titleLabel_->setTextColor(isEnabled() ? enabled : disabled);
    const auto imageTint = isEnabled() ? Ref<UIColor>() : disabled;
    imageView_->peer().setTintColor(imageTint);
}

void UIButtonPeer::updatePressedLook() {
    if (std::exchange(isPale_, isHighlighted()) == isHighlighted())
        return;
    const auto change = [this] {
        titleLabel_->setAlpha(isPale_ ? pressedAlpha : 1);
        imageView_->setAlpha(isPale_ ? pressedAlpha : 1);
    };
    if (isPale_)
        AnimationGroup::runWithoutAnimation(change);
    else
        AnimationGroup::run({.duration = releaseTime}, change, {});
}

CGSize UIButtonPeer::imageSize() const {
    const auto image = imageView_->image();
    return image ? DesktopImage::sizeOf(*image) : CGSize();
}

CGSize UIButtonPeer::titleSize() const {
    return titleLabel_->peer().sizeThatFits({});
}

CGSize UIButtonPeer::sizeThatFits(CGSize /*room*/) const {
    const auto image = imageSize();
    const auto title = titleSize();
    return {std::max(leastSide, image.width + title.width),
            std::max({leastSide, image.height, title.height})};
}

std::optional<double> UIButtonPeer::intrinsicWidth() const {
    return sizeThatFits({}).width;
}

std::optional<double> UIButtonPeer::intrinsicHeight() const {
    return sizeThatFits({}).height;
}

CGRect UIButtonPeer::imageFrame(const CGRect& room, double left) const {
    const auto isAlone = !peerOf<UILabelPeer>(*titleLabel_).text();
    const auto own = imageSize();
    const auto filled = UIEdgeInsetsInsetRect(room, imageInsets_);
    auto frame = CGRectMake(left + (imageInsets_.left - imageInsets_.right) / 2,
                            CGRectGetMidY(filled) - own.height / 2, own.width, own.height);
    if (isAlone && horizontalAlignment() == UIControlContentHorizontalAlignment::Fill) {
        frame.origin.x = filled.origin.x;
        frame.size.width = filled.size.width;
    }
    if (isAlone && verticalAlignment() == UIControlContentVerticalAlignment::Fill) {
        frame.origin.y = filled.origin.y;
        frame.size.height = filled.size.height;
    }
    return frame;
}

void UIButtonPeer::layoutSubviews() {
    const auto room = view().bounds();
    const auto image = imageSize();
    auto title = titleSize();
    title.width = std::clamp(title.width, 0.0, std::max(0.0, room.size.width - image.width));
    const auto left = room.origin.x + (room.size.width - image.width - title.width) / 2;
    const auto imageLeft = isRightToLeft() ? left + title.width : left;
    const auto titleLeft = isRightToLeft() ? left : left + image.width;
    imageView_->setFrame(imageFrame(room, imageLeft));
    titleLabel_->setFrame(
        CGRectMake(titleLeft, CGRectGetMidY(room) - title.height / 2, title.width, title.height));
}

void UIButtonPeer::tintColorDidChange() {
    updateColors();
    UIControlPeer::tintColorDidChange();
}

Accessibility UIButtonPeer::accessibility() const {
    auto told = UIControlPeer::accessibility();
    if (told.label.empty())
        told.label = shownText().value_or("");
    const auto isEmpty = told.label.empty() && !imageView_->image();
    told.isElement = told.isElement && !isEmpty;
    return told;
}

std::optional<std::string> UIButtonPeer::shownText() const {
    return peerOf<UILabelPeer>(*titleLabel_).text();
}

void UIButtonPeer::contentDidChange() {
    setNeedsConstraintLayout();
    setNeedsLayout();
}
