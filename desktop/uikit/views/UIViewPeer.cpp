#include "views/UIViewPeer.h"

#include "AnimationGroup.h"
#include "DesktopColor.h"
#include "RectGeometry.h"
#include "views/AttachedRecognizer.h"
#include "views/ViewLayout.h"
#include "views/ViewOwner.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// The part of a change of length that goes to the margin before, the length itself and the margin after.
struct Shares {
    double before = 0;
    double length = 0;
};

/// Shared in proportion to what the flexible parts measured before.
Shares sharesOf(double change, bool flexibleBefore, bool flexibleLength, bool flexibleAfter, double before,
                double length, double after) {
    const auto parts =
        (flexibleBefore ? before : 0) + (flexibleLength ? length : 0) + (flexibleAfter ? after : 0);
    const auto count = int{flexibleBefore} + int{flexibleLength} + int{flexibleAfter};
    if (count == 0)
        return {};
    const auto share = [=](bool flexible, double part) {
        if (!flexible)
            return 0.0;
        return parts > 0 ? change * part / parts : change / count;
    };
    return {share(flexibleBefore, before), share(flexibleLength, length)};
}

bool has(UIViewAutoresizing mask, UIViewAutoresizing flag) {
    return (static_cast<unsigned>(mask) & static_cast<unsigned>(flag)) != 0;
}

} // namespace

UIViewPeer::UIViewPeer() : layer_(make<CALayer>()), layout_(std::make_unique<ViewLayout>()) {
    layerPeer().delegate = this;
}

UIViewPeer::~UIViewPeer() {
    for (const auto& recognizer : gestureRecognizers_)
        recognizer->viewIsGone();
    layerPeer().delegate = nullptr;
    for (const auto& subview : subviews_) {
        subview->layer().peer().removeFromSuperlayer();
        subview->peer().superview_ = nullptr;
    }
}

CALayerPeer& UIViewPeer::layerPeer() const {
    return layer_->peer();
}

void UIViewPeer::insertSubview(const Ref<UIView>& subview, std::size_t index) {
    const auto kept = retain(subview.get());
    auto& peer = kept->peer();
    const auto isReordered = peer.superview_ == view_;
    if (isReordered)
        std::erase(subviews_, kept);
    else
        peer.removeFromSuperview();
    const auto* const before = peer.window();
    const auto place = std::min(index, subviews_.size());
    layerPeer().insertSublayer(peer.layer_, layerPlace(peer, place));
    subviews_.insert(subviews_.begin() + static_cast<std::ptrdiff_t>(place), kept);
    setNeedsLayout();
    if (isReordered)
        return;
    peer.superview_ = view_;
    peer.movedInTree(before);
}

std::size_t UIViewPeer::layerPlace(const UIViewPeer& subview, std::size_t place) const {
    const auto& sublayers = layerPeer().sublayers();
    if (place >= subviews_.size())
        return sublayers.size();
    const auto next = std::ranges::find(sublayers, &subviews_[place]->layer(), &Ref<CALayer>::get);
    const auto isOther = [&subview](const auto& layer) { return layer != subview.layer_; };
    return static_cast<std::size_t>(std::count_if(sublayers.begin(), next, isOther));
}

void UIViewPeer::bringSubviewToFront(const UIView& subview) {
    const auto found = std::ranges::find(subviews_, &subview, &Ref<UIView>::get);
    if (found != subviews_.end())
        addSubview(*found);
}

void UIViewPeer::removeFromSuperview() {
    if (superview_ == nullptr)
        return;
    const auto kept = retain(view_);
    cancelTouchesIn(*view_);
    if (superview_ == nullptr)
        return;
    const auto* const before = window();
    auto& parent = std::exchange(superview_, nullptr)->peer();
    layerPeer().removeFromSuperlayer();
    std::erase(parent.subviews_, kept);
    parent.setNeedsLayout();
    movedInTree(before);
}

void UIViewPeer::movedInTree(const UIWindow* before) {
    AnimationGroup::runWithoutAnimation([this] {
        traitsDidChange();
        tellOfTint();
    });
    view_->didMoveToSuperview();
    if (window() != before)
        movedToWindow();
}

void UIViewPeer::movedToWindow() {
    didMoveToWindow();
    for (const auto& subview : std::vector(subviews_))
        subview->peer().movedToWindow();
}

bool UIViewPeer::isDescendantOf(const UIView& ancestor) const {
    for (const auto* view = view_; view != nullptr; view = view->peer().superview_) {
        if (view == &ancestor)
            return true;
    }
    return false;
}

UIViewController* UIViewPeer::controller() const {
    return owner_ != nullptr ? &owner_->controller() : nullptr;
}

UIWindow* UIViewPeer::window() const {
    return superview_ != nullptr ? superview_->peer().window() : nullptr;
}

AffineTransform UIViewPeer::toScreen() const {
    const auto toSuperview = layerPeer().toSuperlayer();
    return superview_ != nullptr ? superview_->peer().toScreen().after(toSuperview) : toSuperview;
}

CGPoint UIViewPeer::convertToScreen(CGPoint point) const {
    return toScreen()(point);
}

CGPoint UIViewPeer::convertFromScreen(CGPoint point) const {
    return toScreen().inverse()(point);
}

CGRect UIViewPeer::convertToScreen(const CGRect& rect) const {
    return toScreen()(rect);
}

CGPoint UIViewPeer::convertTo(const UIView& other, CGPoint point) const {
    return other.peer().convertFromScreen(convertToScreen(point));
}

CGRect UIViewPeer::convertTo(const UIView& other, const CGRect& rect) const {
    return other.peer().toScreen().inverse().after(toScreen())(rect);
}

void UIViewPeer::setFrame(const CGRect& frame) {
    const auto before = layerPeer().bounds().size;
    layerPeer().setFrame(frame);
    boundsChanged(before);
}

void UIViewPeer::setBounds(const CGRect& bounds) {
    const auto before = layerPeer().bounds().size;
    layerPeer().setBoundsOrigin(bounds.origin);
    layerPeer().setBoundsSize(bounds.size);
    boundsChanged(before);
}

void UIViewPeer::setCenter(CGPoint center) {
    layerPeer().setPosition(center);
}

void UIViewPeer::setTransform(const AffineTransform& transform) {
    layerPeer().setTransform(transform);
}

void UIViewPeer::setHidden(bool hidden) {
    if (layerPeer().hidden == hidden)
        return;
    if (hidden && view_ != nullptr)
        cancelTouchesIn(*view_);
    layerPeer().hidden = hidden;
    if (superview_ != nullptr)
        superview_->peer().setNeedsConstraintLayout(); // a stack view gives its room to the others
}

void UIViewPeer::setUserInteractionEnabled(bool enabled) {
    if (!enabled && view_ != nullptr) // a peer may say so before it has its view
        cancelTouchesIn(*view_);
    userInteractionEnabled_ = enabled;
}

void UIViewPeer::boundsChanged(CGSize before) {
    const auto after = layerPeer().bounds().size;
    if (before == after)
        return;
    for (const auto& subview : std::vector(subviews_))
        subview->peer().autoresize(before, after);
    setNeedsLayout();
}

void UIViewPeer::autoresize(CGSize before, CGSize after) {
    if (autoresizingMask_ == UIViewAutoresizing::None)
        return;
    using enum UIViewAutoresizing;
    const auto mask = autoresizingMask_;
    auto frame = layerPeer().frame();
    const auto horizontal = sharesOf(after.width - before.width, has(mask, FlexibleLeftMargin),
                                     has(mask, FlexibleWidth), has(mask, FlexibleRightMargin), frame.origin.x,
                                     frame.size.width, before.width - CGRectGetMaxX(frame));
    const auto vertical = sharesOf(after.height - before.height, has(mask, FlexibleTopMargin),
                                   has(mask, FlexibleHeight), has(mask, FlexibleBottomMargin), frame.origin.y,
                                   frame.size.height, before.height - CGRectGetMaxY(frame));
    frame.origin.x += horizontal.before;
    frame.size.width += horizontal.length;
    frame.origin.y += vertical.before;
    frame.size.height += vertical.length;
    setFrame(frame);
}

void UIViewPeer::setNeedsLayout() {
    needsLayout_ = true;
    scheduleLayout();
}

void UIViewPeer::scheduleLayout() {
    if (superview_ != nullptr)
        superview_->peer().scheduleLayout();
}

void UIViewPeer::cancelTouchesIn(UIView& view) {
    if (superview_ != nullptr)
        superview_->peer().cancelTouchesIn(view);
}

void UIViewPeer::layoutIfNeeded() {
    const auto kept = retain(view_);
    noteSafeArea();
    if (std::exchange(needsLayout_, false)) {
        layOutByConstraints();
        view_->layoutSubviews();
        if (owner_ != nullptr)
            owner_->viewDidLayoutSubviews();
    }
    for (const auto& subview : std::vector(subviews_))
        subview->peer().layoutIfNeeded();
}

CGSize UIViewPeer::sizeThatFits(CGSize /*room*/) const {
    return layerPeer().bounds().size;
}

void UIViewPeer::sizeToFit() {
    auto frame = layerPeer().frame();
    frame.size = sizeThatFits(frame.size);
    setFrame(frame);
}

UIEdgeInsets UIViewPeer::coveredBySuperview() const {
    const auto& parent = superview_->peer();
    const auto around = parent.safeAreaInsets();
    const auto bounds = parent.layerPeer().bounds();
    const auto frame = layerPeer().untransformedFrame();
    const auto covered = [](double length, double inset) {
        return std::clamp(length, 0.0, std::max(0.0, inset));
    };
    return {.top = covered(bounds.origin.y + around.top - frame.origin.y, around.top),
            .left = covered(bounds.origin.x + around.left - frame.origin.x, around.left),
            .bottom = covered(CGRectGetMaxY(frame) - CGRectGetMaxY(bounds) + around.bottom, around.bottom),
            .right = covered(CGRectGetMaxX(frame) - CGRectGetMaxX(bounds) + around.right, around.right)};
}

UIEdgeInsets UIViewPeer::safeAreaInsets() const {
    auto insets = superview_ != nullptr ? coveredBySuperview() : UIEdgeInsets();
    insets.top += additionalSafeAreaInsets_.top;
    insets.left += additionalSafeAreaInsets_.left;
    insets.bottom += additionalSafeAreaInsets_.bottom;
    insets.right += additionalSafeAreaInsets_.right;
    return insets;
}

void UIViewPeer::setAdditionalSafeAreaInsets(const UIEdgeInsets& insets) {
    if (additionalSafeAreaInsets_ == insets)
        return;
    additionalSafeAreaInsets_ = insets;
    noteSafeAreaOfAll();
}

void UIViewPeer::noteSafeAreaOfAll() {
    noteSafeArea();
    for (const auto& subview : std::vector(subviews_))
        subview->peer().noteSafeAreaOfAll();
}

void UIViewPeer::noteSafeArea() {
    const auto insets = safeAreaInsets();
    if (std::exchange(notedSafeAreaInsets_, insets) == insets)
        return;
    setNeedsLayout();
    safeAreaInsetsDidChange();
}

CGRect UIViewPeer::fromLeading(const CGRect& rect) const {
    const auto end =
        fromLeading(CGPoint{isRightToLeft() ? CGRectGetMaxX(rect) : rect.origin.x, rect.origin.y});
    return {end, rect.size};
}

CGPoint UIViewPeer::fromLeading(CGPoint point) const {
    if (!isRightToLeft())
        return point;
    const auto bounds = layerPeer().bounds();
    return {bounds.origin.x + CGRectGetMaxX(bounds) - point.x, point.y};
}

void UIViewPeer::place(UIView& subview, const CGRect& frame) const {
    subview.setFrame(fromLeading(frame));
}

Traits UIViewPeer::traits() const {
    auto traits = superview_ != nullptr ? superview_->peer().traits() : Traits();
    if (traitOverride_)
        traitOverride_(traits);
    return traits;
}

void UIViewPeer::setTraitOverride(std::function<void(Traits&)> change) {
    traitOverride_ = std::move(change);
    traitsDidChange();
}

void UIViewPeer::traitsDidChange() {
    resolveColors();
    setNeedsDisplay();
    setNeedsLayout();
    for (const auto& subview : std::vector(subviews_))
        subview->peer().traitsDidChange();
}

void UIViewPeer::keyboardDidChange() const {
    if (owner_ != nullptr)
        owner_->keyboardDidChange();
    for (const auto& subview : std::vector(subviews_))
        subview->peer().keyboardDidChange();
}

bool UIViewPeer::isTintDimmed() const {
    return tintDimmed_ || (superview_ != nullptr && superview_->peer().isTintDimmed());
}

void UIViewPeer::setTintDimmed(bool dimmed) {
    if (std::exchange(tintDimmed_, dimmed) == dimmed)
        return;
    tellOfTint();
    tellViewsOfOwnTint();
}

void UIViewPeer::tellViewsOfOwnTint() const {
    for (const auto& subview : std::vector(subviews_)) {
        if (subview->peer().tintColor_)
            subview->peer().tellOfTint();
        subview->peer().tellViewsOfOwnTint();
    }
}

Ref<UIColor> UIViewPeer::tintColor() const {
    if (isTintDimmed())
        return DesktopColor::system(SystemColor::Gray);
    if (tintColor_)
        return tintColor_;
    return superview_ != nullptr ? superview_->peer().tintColor() : DesktopColor::system(SystemColor::Blue);
}

void UIViewPeer::setTintColor(const Ref<UIColor>& color) {
    tintColor_ = color;
    tellOfTint();
}

void UIViewPeer::tellOfTint() const {
    const auto kept = retain(view_);
    view_->tintColorDidChange();
    for (const auto& subview : std::vector(subviews_)) {
        if (!subview->peer().tintColor_)
            subview->peer().tellOfTint();
    }
}

void UIViewPeer::setBackgroundColor(const Ref<UIColor>& color) {
    backgroundColor_ = color;
    resolveColors();
}

void UIViewPeer::resolveColors() {
    layerPeer().setColor(LayerProperty::BackgroundColor, DesktopColor::resolve(backgroundColor_, traits()));
}

void UIViewPeer::setContentMode(UIViewContentMode mode) {
    contentMode_ = mode;
    setNeedsDisplay();
}

UIView* UIViewPeer::hitTest(CGPoint point) {
    constexpr auto leastAlpha = 0.01;
    if (isHidden() || !userInteractionEnabled_ || layerPeer().number(LayerProperty::Opacity) < leastAlpha ||
        !pointInside(point))
        return nullptr;
    for (auto index = subviews_.size(); index-- > 0;) {
        auto& subview = subviews_[index]->peer();
        if (auto* const hit = subview.hitTest(subview.layerPeer().toSuperlayer().inverse()(point)))
            return hit;
    }
    return view_;
}

bool UIViewPeer::pointInside(CGPoint point) const {
    return CGRectContainsPoint(layerPeer().bounds(), point);
}

void UIViewPeer::touchBegan(DesktopTouch& touch, UIEvent& event) {
    if (superview_ != nullptr)
        superview_->peer().touchBegan(touch, event);
}

void UIViewPeer::touchMoved(DesktopTouch& touch, UIEvent& event) {
    if (superview_ != nullptr)
        superview_->peer().touchMoved(touch, event);
}

void UIViewPeer::touchEnded(DesktopTouch& touch, UIEvent& event) {
    if (superview_ != nullptr)
        superview_->peer().touchEnded(touch, event);
}

void UIViewPeer::touchCancelled(DesktopTouch& touch, UIEvent& event) {
    if (superview_ != nullptr)
        superview_->peer().touchCancelled(touch, event);
}

void UIViewPeer::addGestureRecognizer(const Ref<AttachedRecognizer>& recognizer) {
    gestureRecognizers_.push_back(recognizer);
    recognizer->attachTo(*view_);
}

PropertyList::Dictionary UIViewPeer::inspectedProperties() const {
    return {};
}

void UIViewPeer::drawLayer(QPainter& /*painter*/, const CGRect& /*bounds*/, const Traits& /*traits*/) {}
