#include "GlintImageSwitch.h"

#include "ObjectiveC/Class.h"
#include "UIKit/UIBezierPath.h"

namespace {

constexpr auto defaultFrame = CGRectMake(0, 0, 50, 30);
constexpr auto thumbMargin = 1.0;       ///< between the thumb and the track's edge
constexpr auto thumbGrowth = 5.0;       ///< of the thumb's width while a finger is down
constexpr auto plainCornerRadius = 2.0; ///< of a switch that is not rounded
constexpr auto animationDuration = 0.3; ///< seconds
constexpr auto labelFontSize = 12.0;

constexpr void (GlintImageSwitch::*setOn)(bool) = &GlintImageSwitch::setOn;
constexpr void (GlintImageSwitch::*setOnAnimated)(bool, bool) = &GlintImageSwitch::setOn;

const Class classObject = Class::define<GlintImageSwitch, UIControl>(
    "GlintImageSwitch", {method<"isOn", &GlintImageSwitch::isOn>(),
                         method<"setOn:", setOn>(),
                         method<"setOn:animated:", setOnAnimated>(),
                         method<"showOnAnimated:", &GlintImageSwitch::showOnAnimated>(),
                         method<"showOffAnimated:", &GlintImageSwitch::showOffAnimated>(),
                         method<"isRounded", &GlintImageSwitch::isRounded>(),
                         method<"setRounded:", &GlintImageSwitch::setRounded>(),
                         method<"activeColor", &GlintImageSwitch::activeColor>(),
                         method<"setActiveColor:", &GlintImageSwitch::setActiveColor>(),
                         method<"inactiveColor", &GlintImageSwitch::inactiveColor>(),
                         method<"setInactiveColor:", &GlintImageSwitch::setInactiveColor>(),
                         method<"onTintColor", &GlintImageSwitch::onTintColor>(),
                         method<"setOnTintColor:", &GlintImageSwitch::setOnTintColor>(),
                         method<"borderColor", &GlintImageSwitch::borderColor>(),
                         method<"setBorderColor:", &GlintImageSwitch::setBorderColor>(),
                         method<"thumbTintColor", &GlintImageSwitch::thumbTintColor>(),
                         method<"setThumbTintColor:", &GlintImageSwitch::setThumbTintColor>(),
                         method<"onThumbTintColor", &GlintImageSwitch::onThumbTintColor>(),
                         method<"setOnThumbTintColor:", &GlintImageSwitch::setOnThumbTintColor>(),
                         method<"shadowColor", &GlintImageSwitch::shadowColor>(),
                         method<"setShadowColor:", &GlintImageSwitch::setShadowColor>(),
                         method<"thumbImage", &GlintImageSwitch::thumbImage>(),
                         method<"setThumbImage:", &GlintImageSwitch::setThumbImage>(),
                         method<"onImage", &GlintImageSwitch::onImage>(),
                         method<"setOnImage:", &GlintImageSwitch::setOnImage>(),
                         method<"offImage", &GlintImageSwitch::offImage>(),
                         method<"setOffImage:", &GlintImageSwitch::setOffImage>(),
                         method<"onLabel", &GlintImageSwitch::onLabel>(),
                         method<"offLabel", &GlintImageSwitch::offLabel>(),
                         method<"backgroundView", &GlintImageSwitch::backgroundView>(),
                         method<"thumbView", &GlintImageSwitch::thumbView>()});

/// The half of the track beside a thumb on the right.
CGRect leftPart(CGSize size) {
    return CGRectMake(0, 0, size.width - size.height, size.height);
}

/// The half of the track beside a thumb on the left.
CGRect rightPart(CGSize size) {
    return CGRectMake(size.height, 0, size.width - size.height, size.height);
}

/// The thumb's side at rest.
double thumbSide(double height) {
    return height - 2 * thumbMargin;
}

Ref<UIImageView> makeTrackImageView(const CGRect& frame) {
    auto imageView = makeWith<UIImageView>(&UIImageView::initWithFrame, frame);
    imageView->setAlpha(1);
    imageView->setContentMode(UIViewContentMode::Center);
    return imageView;
}

Ref<UILabel> makeTrackLabel(const CGRect& frame) {
    auto label = makeWith<UILabel>(&UILabel::initWithFrame, frame);
    label->setTextAlignment(NSTextAlignment::Center);
    label->setTextColor(UIColor::lightGrayColor());
    label->setFont(UIFont::systemFontOfSize(labelFontSize));
    return label;
}

} // namespace

bool GlintImageSwitch::init() {
    return initWithFrame(defaultFrame);
}

bool GlintImageSwitch::initWithFrame(const CGRect& frame) {
    if (!UIControl::initWithFrame(CGRectIsEmpty(frame) ? defaultFrame : frame))
        return false;
    setupGlintImageSwitch();
    return true;
}

bool GlintImageSwitch::initWithCoder(NSCoder& coder) {
    if (!UIControl::initWithCoder(coder))
        return false;
    setupGlintImageSwitch();
    return true;
}

void GlintImageSwitch::setupGlintImageSwitch() {
    setupDefaults();
    setupTrack();
    setupTrackContents();
    setupThumb();
    setOn(false);
}

void GlintImageSwitch::setupDefaults() {
    activeColor_ = UIColor::colorWithRed(0.89, 0.89, 0.89, 1.0);
    inactiveColor_ = UIColor::clearColor();
    onTintColor_ = UIColor::colorWithRed(0.3, 0.85, 0.39, 1.0);
    borderColor_ = UIColor::colorWithRed(0.78, 0.78, 0.8, 1.0);
    thumbTintColor_ = UIColor::whiteColor();
    onThumbTintColor_ = UIColor::whiteColor();
    shadowColor_ = UIColor::grayColor();
}

void GlintImageSwitch::setupTrack() {
    const auto size = frame().size;
    backgroundView_ = makeWith<UIView>(&UIView::initWithFrame, CGRect{{}, size});
    backgroundView_->setBackgroundColor(UIColor::clearColor());
    backgroundView_->layer().setCornerRadius(size.height * 0.5);
    backgroundView_->layer().setBorderColor(borderColor_);
    backgroundView_->layer().setBorderWidth(1.0);
    backgroundView_->setUserInteractionEnabled(false);
    backgroundView_->setClipsToBounds(false);
    addSubview(backgroundView_);
}

void GlintImageSwitch::setupTrackContents() {
    const auto size = frame().size;
    onImageView_ = makeTrackImageView(leftPart(size));
    backgroundView_->addSubview(onImageView_);
    offImageView_ = makeTrackImageView(rightPart(size));
    backgroundView_->addSubview(offImageView_);
    onLabel_ = makeTrackLabel(leftPart(size));
    backgroundView_->addSubview(onLabel_);
    offLabel_ = makeTrackLabel(rightPart(size));
    backgroundView_->addSubview(offLabel_);
}

void GlintImageSwitch::setupThumb() {
    const auto height = frame().size.height;
    const auto side = thumbSide(height);
    thumbView_ = makeWith<UIView>(&UIView::initWithFrame, CGRectMake(thumbMargin, thumbMargin, side, side));
    thumbView_->setBackgroundColor(thumbTintColor_);
    auto& layer = thumbView_->layer();
    layer.setCornerRadius(height * 0.5 - 1);
    layer.setShadowColor(shadowColor_);
    layer.setShadowRadius(2.0);
    layer.setShadowOpacity(0.5);
    layer.setShadowOffset({0, 3.0});
    updateThumbShadowPath();
    layer.setMasksToBounds(false);
    thumbView_->setUserInteractionEnabled(false);
    addSubview(thumbView_);

    thumbImageView_ =
        makeWith<UIImageView>(&UIImageView::initWithFrame, CGRect{{}, thumbView_->frame().size});
    thumbImageView_->setContentMode(UIViewContentMode::Center);
    thumbImageView_->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth);
    thumbView_->addSubview(thumbImageView_);
}

void GlintImageSwitch::updateThumbShadowPath() {
    thumbView_->layer().setShadowPath(
        UIBezierPath::bezierPathWithRoundedRect(thumbView_->bounds(), thumbView_->layer().cornerRadius()));
}

// The shadow's path is meant to stay as it is here.
void GlintImageSwitch::layoutSubviews() {
    UIControl::layoutSubviews();
    if (isAnimating_)
        return;
    const auto size = frame().size;
    backgroundView_->setFrame({{}, size});
    backgroundView_->layer().setCornerRadius(rounded_ ? size.height * 0.5 : plainCornerRadius);
    onImageView_->setFrame(leftPart(size));
    onLabel_->setFrame(leftPart(size));
    offImageView_->setFrame(rightPart(size));
    offLabel_->setFrame(rightPart(size));
    const auto side = thumbSide(size.height);
    thumbView_->setFrame(
        CGRectMake(isOn() ? size.width - (side + thumbMargin) : thumbMargin, thumbMargin, side, side));
    thumbView_->layer().setCornerRadius(rounded_ ? size.height * 0.5 - 1 : plainCornerRadius);
}

bool GlintImageSwitch::beginTrackingWithTouch(UITouch& touch, UIEvent* event) {
    UIControl::beginTrackingWithTouch(touch, event);
    startTrackingValue_ = isOn();
    didChangeWhileTracking_ = false;
    animate(&GlintImageSwitch::applyPressedLook);
    return true;
}

bool GlintImageSwitch::continueTrackingWithTouch(UITouch& touch, UIEvent* event) {
    UIControl::continueTrackingWithTouch(touch, event);
    const auto isRightOfMiddle = touch.locationInView(*this).x > bounds().size.width * 0.5;
    if (isRightOfMiddle)
        showOnAnimated(true);
    else
        showOffAnimated(true);
    if (isRightOfMiddle != startTrackingValue_)
        didChangeWhileTracking_ = true;
    return true;
}

void GlintImageSwitch::endTrackingWithTouch(UITouch& touch, UIEvent* event) {
    UIControl::endTrackingWithTouch(touch, event);
    const auto wasOn = isOn();
    setOn(didChangeWhileTracking_ ? currentVisualValue_ : !wasOn, true);
    if (isOn() != wasOn)
        sendActionsForControlEvents(UIControlEvents::ValueChanged);
}

void GlintImageSwitch::cancelTrackingWithEvent(UIEvent* event) {
    UIControl::cancelTrackingWithEvent(event);
    if (isOn())
        showOnAnimated(true);
    else
        showOffAnimated(true);
}

void GlintImageSwitch::setOn(bool on) {
    switchValue_ = on;
    setOn(on, false);
}

void GlintImageSwitch::setOn(bool on, bool animated) {
    switchValue_ = on;
    if (on)
        showOnAnimated(animated);
    else
        showOffAnimated(animated);
}

void GlintImageSwitch::showOnAnimated(bool animated) {
    if (animated)
        animate(&GlintImageSwitch::applyOnLook);
    else
        applyOnLook();
    currentVisualValue_ = true;
}

void GlintImageSwitch::showOffAnimated(bool animated) {
    if (animated)
        animate(&GlintImageSwitch::applyOffLook);
    else
        applyOffLook();
    currentVisualValue_ = false;
}

void GlintImageSwitch::animate(void (GlintImageSwitch::*changes)()) {
    isAnimating_ = true;
    UIView::animateWithDuration(
        animationDuration, 0, UIViewAnimationOptions::BeginFromCurrentState,
        [this, changes] { (this->*changes)(); },
        [kept = retain(this)](bool /*finished*/) { kept->isAnimating_ = false; });
}

void GlintImageSwitch::applyOnLook() {
    const auto side = thumbSide(bounds().size.height);
    const auto width = isTracking() ? side + thumbGrowth : side;
    setThumbFrame(bounds().size.width - (width + thumbMargin), width);
    backgroundView_->setBackgroundColor(onTintColor_);
    backgroundView_->layer().setBorderColor(onTintColor_);
    thumbView_->setBackgroundColor(onThumbTintColor_);
    setTrackContentsOn(true);
}

void GlintImageSwitch::applyOffLook() {
    const auto side = thumbSide(bounds().size.height);
    setThumbFrame(thumbMargin, isTracking() ? side + thumbGrowth : side);
    backgroundView_->setBackgroundColor(isTracking() ? activeColor_ : inactiveColor_);
    backgroundView_->layer().setBorderColor(borderColor_);
    thumbView_->setBackgroundColor(thumbTintColor_);
    setTrackContentsOn(false);
}

void GlintImageSwitch::applyPressedLook() {
    const auto width = thumbSide(bounds().size.height) + thumbGrowth;
    setThumbFrame(isOn() ? bounds().size.width - (width + thumbMargin) : thumbView_->frame().origin.x, width);
    backgroundView_->setBackgroundColor(isOn() ? onTintColor_ : activeColor_);
    thumbView_->setBackgroundColor(isOn() ? onThumbTintColor_ : thumbTintColor_);
}

void GlintImageSwitch::setTrackContentsOn(bool on) {
    onImageView_->setAlpha(on ? 1 : 0);
    offImageView_->setAlpha(on ? 0 : 1);
    onLabel_->setAlpha(on ? 1 : 0);
    offLabel_->setAlpha(on ? 0 : 1);
}

void GlintImageSwitch::setThumbFrame(double x, double width) {
    const auto frame = thumbView_->frame();
    thumbView_->setFrame(CGRectMake(x, frame.origin.y, width, frame.size.height));
}

void GlintImageSwitch::setRounded(bool rounded) {
    rounded_ = rounded;
    const auto height = frame().size.height;
    backgroundView_->layer().setCornerRadius(rounded ? height * 0.5 : plainCornerRadius);
    thumbView_->layer().setCornerRadius(rounded ? height * 0.5 - 1 : plainCornerRadius);
    updateThumbShadowPath();
}

// That a switch which is on shows the colour is meant, though it is the colour of one that is off and
// pressed.
void GlintImageSwitch::setActiveColor(const Ref<UIColor>& color) {
    activeColor_ = color;
    if (isOn() && !isTracking())
        backgroundView_->setBackgroundColor(color);
}

void GlintImageSwitch::setInactiveColor(const Ref<UIColor>& color) {
    inactiveColor_ = color;
    if (!isOn() && !isTracking())
        backgroundView_->setBackgroundColor(color);
}

void GlintImageSwitch::setOnTintColor(const Ref<UIColor>& color) {
    onTintColor_ = color;
    if (!isOn() || isTracking())
        return;
    backgroundView_->setBackgroundColor(color);
    backgroundView_->layer().setBorderColor(color);
}

void GlintImageSwitch::setBorderColor(const Ref<UIColor>& color) {
    borderColor_ = color;
    if (!isOn())
        backgroundView_->layer().setBorderColor(color);
}

void GlintImageSwitch::setThumbTintColor(const Ref<UIColor>& color) {
    thumbTintColor_ = color;
    if (!userDidSpecifyOnThumbTintColor_)
        onThumbTintColor_ = color;
    if ((!userDidSpecifyOnThumbTintColor_ || !isOn()) && !isTracking())
        thumbView_->setBackgroundColor(color);
}

void GlintImageSwitch::setOnThumbTintColor(const Ref<UIColor>& color) {
    onThumbTintColor_ = color;
    userDidSpecifyOnThumbTintColor_ = true;
    if (isOn() && !isTracking())
        thumbView_->setBackgroundColor(color);
}

void GlintImageSwitch::setShadowColor(const Ref<UIColor>& color) {
    shadowColor_ = color;
    thumbView_->layer().setShadowColor(color);
}
