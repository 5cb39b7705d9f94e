#include "UIKit/UIView.h"

#include "AnimationGroup.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

#include <utility>

namespace {

const Class responderClass = Class::define<UIResponder>("UIResponder");
const Class viewClass = Class::define<UIView, UIResponder>("UIView");

constexpr bool has(UIViewAnimationOptions options, UIViewAnimationOptions flag) {
    return (static_cast<unsigned>(options) & static_cast<unsigned>(flag)) != 0;
}

std::chrono::nanoseconds nanoseconds(double seconds) {
    return std::chrono::round<std::chrono::nanoseconds>(std::chrono::duration<double>(seconds));
}

/// Of a view that shows nothing but what its layer has.
class PlainViewPeer final : public UIViewPeer {
public:
    // LayerDelegate:
    [[nodiscard]] bool hasContents() const override { return false; }
};

} // namespace

UIView::UIView() : UIView(std::make_unique<PlainViewPeer>()) {}

UIView::UIView(std::unique_ptr<UIViewPeer> peer) : peer_(std::move(peer)) {
    peer_->view_ = this;
}

UIView::~UIView() = default;

bool UIView::init() {
    return initWithFrame({});
}

bool UIView::initWithFrame(const CGRect& frame) {
    if (!UIResponder::init())
        return false;
    setFrame(frame);
    return true;
}

bool UIView::initWithCoder(NSCoder& /*coder*/) {
    return UIResponder::init();
}

CGRect UIView::frame() const {
    return layer().peer().frame();
}

void UIView::setFrame(const CGRect& frame) {
    peer_->setFrame(frame);
}

CGRect UIView::bounds() const {
    return layer().peer().bounds();
}

void UIView::setCenter(CGPoint center) {
    peer_->setCenter(center);
}

void UIView::setBackgroundColor(const Ref<UIColor>& color) {
    peer_->setBackgroundColor(color);
}

void UIView::setTintColor(const Ref<UIColor>& color) {
    peer_->setTintColor(color);
}

Ref<UIColor> UIView::tintColor() const {
    return peer_->tintColor();
}

void UIView::setAlpha(double alpha) {
    layer().peer().setNumber(LayerProperty::Opacity, alpha);
}

void UIView::setContentMode(UIViewContentMode mode) {
    peer_->setContentMode(mode);
}

void UIView::setClipsToBounds(bool clips) {
    layer().setMasksToBounds(clips);
}

void UIView::setUserInteractionEnabled(bool enabled) {
    peer_->setUserInteractionEnabled(enabled);
}

void UIView::setAutoresizingMask(UIViewAutoresizing mask) {
    peer_->setAutoresizingMask(mask);
}

CALayer& UIView::layer() const {
    return peer_->layer();
}

void UIView::setAccessibilityLabel(const std::optional<std::string>& label) {
    peer_->setAccessibilityLabel(label.value_or(""));
}

void UIView::setTag(int tag) {
    peer_->setTag(tag);
}

void UIView::addSubview(const Ref<UIView>& view) {
    peer_->addSubview(view);
}

void UIView::insertSubview(const Ref<UIView>& view, std::size_t index) {
    peer_->insertSubview(view, index);
}

std::vector<Ref<UIView>> UIView::subviews() const {
    return peer_->subviews();
}

Ref<UIView> UIView::superview() const {
    return peer_->superview() != nullptr ? retain(peer_->superview()) : nullptr;
}

void UIView::layoutSubviews() {
    peer_->layoutSubviews();
}

void UIView::tintColorDidChange() {
    peer_->tintColorDidChange();
}

void UIView::didMoveToSuperview() {
    peer_->didMoveToSuperview();
}

void UIView::animateWithDuration(double duration, double delay, UIViewAnimationOptions options,
                                 const std::function<void()>& animations,
                                 std::function<void(bool finished)> completion) {
    AnimationGroup::run({.duration = nanoseconds(duration),
                         .delay = nanoseconds(delay),
                         .fromCurrentState = has(options, UIViewAnimationOptions::BeginFromCurrentState)},
                        animations, std::move(completion));
}
