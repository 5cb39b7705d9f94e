#include "CALayerPeer.h"

#include "AnimationGroup.h"
#include "Device.h"
#include "QuartzCore/CALayer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

std::uint64_t lastIdentity = 0;

std::chrono::nanoseconds now() {
    return Device::current().clock().uptime();
}

AffineTransform asTransform(const LayerValue& value) {
    return {value[0], value[1], value[2], value[3], value[4], value[5]};
}

CGRect rectOf(const LayerValue& origin, const LayerValue& size) {
    return CGRectMake(origin[0], origin[1], size[0], size[1]);
}

/// From the bounds to the superlayer: the anchor point comes to the position, the transform acts around it.
AffineTransform mapOf(const CGRect& bounds, CGPoint anchor, CGPoint position,
                      const AffineTransform& transform) {
    const auto anchorX = bounds.origin.x + bounds.size.width * anchor.x;
    const auto anchorY = bounds.origin.y + bounds.size.height * anchor.y;
    return AffineTransform::translation(position.x, position.y)
        .after(transform)
        .after(AffineTransform::translation(-anchorX, -anchorY));
}

} // namespace

std::array<LayerValue, layerPropertyCount> CALayerPeer::defaultValues() {
    std::array<LayerValue, layerPropertyCount> values{};
    const auto at = [&values](LayerProperty property) -> LayerValue& {
        return values[static_cast<std::size_t>(property)];
    };
    at(LayerProperty::Transform) = {1, 0, 0, 1, 0, 0};
    at(LayerProperty::Opacity) = {1};
    at(LayerProperty::BorderColor) = {0, 0, 0, 1};
    at(LayerProperty::ShadowColor) = {0, 0, 0, 1};
    at(LayerProperty::ShadowOffset) = {0, -3};
    at(LayerProperty::ShadowRadius) = {3};
    return values;
}

CALayerPeer::CALayerPeer(CALayer& layer) : layer_(layer), identity_(++lastIdentity) {}

CALayerPeer::~CALayerPeer() {
    forgetEnded();
    for (const auto& animation : animations_)
        animation.group->animationTakenAway();
    for (const auto& sublayer : sublayers_)
        sublayer->peer().superlayer_ = nullptr;
}

void CALayerPeer::insertSublayer(const Ref<CALayer>& sublayer, std::size_t index) {
    const auto kept = retain(sublayer.get());
    auto& peer = kept->peer();
    if (peer.superlayer_ == &layer_)
        std::erase(sublayers_, kept);
    else
        peer.removeFromSuperlayer();
    const auto place = std::min(index, sublayers_.size());
    sublayers_.insert(sublayers_.begin() + static_cast<std::ptrdiff_t>(place), kept);
    peer.superlayer_ = &layer_;
}

void CALayerPeer::removeFromSuperlayer() {
    if (superlayer_ == nullptr)
        return;
    const auto kept = retain(&layer_);
    removeAllAnimations();
    std::erase(std::exchange(superlayer_, nullptr)->peer().sublayers_, kept);
}

void CALayerPeer::removeAllAnimations() {
    forgetEnded();
    for (const auto& animation : std::exchange(animations_, {}))
        animation.group->animationTakenAway();
    for (const auto& sublayer : sublayers_)
        sublayer->peer().removeAllAnimations();
}

void CALayerPeer::setValue(LayerProperty property, const LayerValue& newValue) {
    auto& held = values_[static_cast<std::size_t>(property)];
    if (held == newValue)
        return;
    const auto* const group = AnimationGroup::recording();
    if (group == nullptr) {
        held = newValue;
        return;
    }
    forgetEnded();
    auto from = group->course().fromCurrentState ? shownValue(property) : held;
    if (group->course().fromCurrentState)
        takeAway(property);
    held = newValue;
    std::ranges::transform(from, newValue, from.begin(), std::minus());
    animate(from, property);
}

void CALayerPeer::animate(const LayerValue& distance, LayerProperty property) {
    auto& group = *AnimationGroup::recording();
    const auto& course = group.course();
    animations_.push_back(
        {property, distance, now() + course.delay, course.duration, course.curve, group.shared_from_this()});
    group.animationStarted();
}

void CALayerPeer::takeAway(LayerProperty property) {
    std::vector<LayerAnimation> taken;
    std::erase_if(animations_, [property, &taken](const auto& animation) {
        const auto isTaken = animation.property == property;
        if (isTaken)
            taken.push_back(animation);
        return isTaken;
    });
    for (const auto& animation : taken)
        animation.group->animationTakenAway();
}

void CALayerPeer::forgetEnded() {
    if (animations_.empty())
        return;
    std::erase_if(animations_, [time = now()](const auto& animation) {
        return animation.begin + animation.duration <= time;
    });
}

LayerValue CALayerPeer::shownValue(LayerProperty property) const {
    auto shown = value(property);
    for (const auto& animation : animations_) {
        if (animation.property != property)
            continue;
        const auto remaining = animation.remaining(now());
        for (std::size_t index = 0; index < shown.size(); ++index)
            shown[index] += animation.distance[index] * remaining;
    }
    return shown;
}

bool CALayerPeer::isAnimating() const {
    return std::ranges::any_of(animations_, [time = now()](const auto& animation) {
        return animation.begin + animation.duration > time;
    });
}

CGRect CALayerPeer::bounds() const {
    return rectOf(value(LayerProperty::BoundsOrigin), value(LayerProperty::BoundsSize));
}

CGRect CALayerPeer::shownBounds() const {
    return rectOf(shownValue(LayerProperty::BoundsOrigin), shownValue(LayerProperty::BoundsSize));
}

CGRect CALayerPeer::frame() const {
    const auto identity = AffineTransform();
    if (transform() != identity)
        return toSuperlayer()(bounds());
    return untransformedFrame();
}

CGRect CALayerPeer::untransformedFrame() const {
    const auto& size = value(LayerProperty::BoundsSize);
    const auto center = position();
    return CGRectMake(center.x - size[0] * anchorPoint.x, center.y - size[1] * anchorPoint.y, size[0],
                      size[1]);
}

void CALayerPeer::setFrame(const CGRect& frame) {
    const auto place = CGPoint{frame.origin.x + frame.size.width * anchorPoint.x,
                               frame.origin.y + frame.size.height * anchorPoint.y};
    auto linear = transform();
    linear.tx = linear.ty = 0;
    setBoundsSize(linear.inverse()(CGRect{{}, frame.size}).size);
    setPosition({place.x - transform().tx, place.y - transform().ty});
}

CGPoint CALayerPeer::position() const {
    const auto& position = value(LayerProperty::Position);
    return {position[0], position[1]};
}

void CALayerPeer::setPosition(CGPoint position) {
    setValue(LayerProperty::Position, {position.x, position.y});
}

void CALayerPeer::setBoundsOrigin(CGPoint origin) {
    setValue(LayerProperty::BoundsOrigin, {origin.x, origin.y});
}

void CALayerPeer::setBoundsSize(CGSize size) {
    setValue(LayerProperty::BoundsSize, {size.width, size.height});
}

AffineTransform CALayerPeer::transform() const {
    return asTransform(value(LayerProperty::Transform));
}

void CALayerPeer::setTransform(const AffineTransform& transform) {
    setValue(LayerProperty::Transform,
             {transform.a, transform.b, transform.c, transform.d, transform.tx, transform.ty});
}

void CALayerPeer::setColor(LayerProperty property, const ColorComponents& color) {
    setValue(property, {color.red, color.green, color.blue, color.alpha});
}

ColorComponents CALayerPeer::color(LayerProperty property) const {
    const auto& value = this->value(property);
    return {value[0], value[1], value[2], value[3]};
}

void CALayerPeer::setNumber(LayerProperty property, double number) {
    setValue(property, {number});
}

AffineTransform CALayerPeer::toSuperlayer() const {
    return mapOf(bounds(), anchorPoint, position(), transform());
}

AffineTransform CALayerPeer::shownToSuperlayer() const {
    const auto position = shownValue(LayerProperty::Position);
    return mapOf(shownBounds(), anchorPoint, {position[0], position[1]},
                 asTransform(shownValue(LayerProperty::Transform)));
}

ShownShape CALayerPeer::shownShapeOnScreen() const {
    auto toScreen = shownToSuperlayer();
    for (const auto* layer = superlayer(); layer != nullptr; layer = layer->peer().superlayer())
        toScreen = layer->peer().shownToSuperlayer().after(toScreen);
    const auto scale = std::hypot(toScreen.a, toScreen.b);
    return {.frame = toScreen(shownBounds()),
            .cornerRadius = scale * shownValue(LayerProperty::CornerRadius)[0]};
}
