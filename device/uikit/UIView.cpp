#include "UIKit/UIView.h"

#include "FrameworkClass.h"
#include "UIKit/NSLayoutDimension.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "UIKit/UILayoutGuide.h"
#include "UIKit/UITapGestureRecognizer.h"
#include "UIKit/UIViewController.h"
#include "UIViewPeer.h"

namespace {

const FrameworkClassOf<NSCoder> coderClass("NSCoder");

const FrameworkClassOf<UIView, UIResponder>
    frameworkClass("UIView", {initialiser<"-[UIView initWithFrame:]", &UIView::initWithFrame>(),
                              initialiser<"-[UIView initWithCoder:]", &UIView::initWithCoder>(),
                              overridable<"-[UIView layoutSubviews]", &UIView::layoutSubviews>(),
                              overridable<"-[UIView tintColorDidChange]", &UIView::tintColorDidChange>(),
                              overridable<"-[UIView didMoveToSuperview]", &UIView::didMoveToSuperview>()});

} // namespace

UIView::UIView() = default;
UIView::~UIView() = default;

UIView::UIView(std::unique_ptr<UIViewPeer> peer) : peer_(std::move(peer)) {}

bool UIView::init() {
    return initWithFrame({});
}

bool UIView::initWithFrame(const CGRect& frame) {
    return initialise<"-[UIView initWithFrame:]">(*this, frame);
}

bool UIView::initWithCoder(NSCoder& coder) {
    return initialise<"-[UIView initWithCoder:]">(*this, coder);
}

CGRect UIView::frame() const {
    return send<"-[UIView frame]", CGRect>(*this);
}

void UIView::setFrame(const CGRect& frame) {
    send<"-[UIView setFrame:]", void>(*this, frame);
}

CGRect UIView::bounds() const {
    return send<"-[UIView bounds]", CGRect>(*this);
}

void UIView::setCenter(CGPoint center) {
    send<"-[UIView setCenter:]", void>(*this, center);
}

void UIView::setBackgroundColor(const Ref<UIColor>& color) {
    send<"-[UIView setBackgroundColor:]", void>(*this, color);
}

void UIView::setTintColor(const Ref<UIColor>& color) {
    send<"-[UIView setTintColor:]", void>(*this, color);
}

Ref<UIColor> UIView::tintColor() const {
    return send<"-[UIView tintColor]", Ref<UIColor>>(*this);
}

void UIView::setAlpha(double alpha) {
    send<"-[UIView setAlpha:]", void>(*this, alpha);
}

void UIView::setContentMode(UIViewContentMode mode) {
    send<"-[UIView setContentMode:]", void>(*this, mode);
}

void UIView::setClipsToBounds(bool clips) {
    send<"-[UIView setClipsToBounds:]", void>(*this, clips);
}

void UIView::setUserInteractionEnabled(bool enabled) {
    send<"-[UIView setUserInteractionEnabled:]", void>(*this, enabled);
}

void UIView::setAutoresizingMask(UIViewAutoresizing mask) {
    send<"-[UIView setAutoresizingMask:]", void>(*this, mask);
}

CALayer& UIView::layer() const {
    return *send<"-[UIView layer]", Ref<CALayer>>(*this);
}

void UIView::setAccessibilityLabel(const std::optional<std::string>& label) {
    send<"-[UIView setAccessibilityLabel:]", void>(*this, label);
}

void UIView::setTag(int tag) {
    send<"-[UIView setTag:]", void>(*this, static_cast<std::int64_t>(tag));
}

void UIView::addGestureRecognizer(const Ref<UITapGestureRecognizer>& recognizer) {
    send<"-[UIView addGestureRecognizer:]", void>(*this, recognizer);
}

void UIView::addSubview(const Ref<UIView>& view) {
    send<"-[UIView addSubview:]", void>(*this, view);
}

void UIView::insertSubview(const Ref<UIView>& view, std::size_t index) {
    send<"-[UIView insertSubview:atIndex:]", void>(*this, view, static_cast<std::int64_t>(index));
}

std::vector<Ref<UIView>> UIView::subviews() const {
    return send<"-[UIView subviews]", std::vector<Ref<UIView>>>(*this);
}

Ref<UIView> UIView::superview() const {
    return send<"-[UIView superview]", Ref<UIView>>(*this);
}

Ref<UIViewController> UIView::_viewControllerForAncestor() const {
    return send<"-[UIView _viewControllerForAncestor]", Ref<UIViewController>>(*this);
}

void UIView::setTranslatesAutoresizingMaskIntoConstraints(bool translates) {
    send<"-[UIView setTranslatesAutoresizingMaskIntoConstraints:]", void>(*this, translates);
}

Ref<NSLayoutXAxisAnchor> UIView::leadingAnchor() const {
    return send<"-[UIView leadingAnchor]", Ref<NSLayoutXAxisAnchor>>(*this);
}

Ref<NSLayoutXAxisAnchor> UIView::trailingAnchor() const {
    return send<"-[UIView trailingAnchor]", Ref<NSLayoutXAxisAnchor>>(*this);
}

Ref<NSLayoutXAxisAnchor> UIView::centerXAnchor() const {
    return send<"-[UIView centerXAnchor]", Ref<NSLayoutXAxisAnchor>>(*this);
}

Ref<NSLayoutYAxisAnchor> UIView::topAnchor() const {
    return send<"-[UIView topAnchor]", Ref<NSLayoutYAxisAnchor>>(*this);
}

Ref<NSLayoutYAxisAnchor> UIView::bottomAnchor() const {
    return send<"-[UIView bottomAnchor]", Ref<NSLayoutYAxisAnchor>>(*this);
}

Ref<NSLayoutYAxisAnchor> UIView::centerYAnchor() const {
    return send<"-[UIView centerYAnchor]", Ref<NSLayoutYAxisAnchor>>(*this);
}

Ref<NSLayoutDimension> UIView::widthAnchor() const {
    return send<"-[UIView widthAnchor]", Ref<NSLayoutDimension>>(*this);
}

Ref<NSLayoutDimension> UIView::heightAnchor() const {
    return send<"-[UIView heightAnchor]", Ref<NSLayoutDimension>>(*this);
}

Ref<UILayoutGuide> UIView::safeAreaLayoutGuide() const {
    return send<"-[UIView safeAreaLayoutGuide]", Ref<UILayoutGuide>>(*this);
}

void UIView::setLayoutMargins(const UIEdgeInsets& margins) {
    send<"-[UIView setLayoutMargins:]", void>(*this, margins);
}

void UIView::layoutSubviews() {
    sendToBase<"-[UIView layoutSubviews]", void>(*this);
}

void UIView::tintColorDidChange() {
    sendToBase<"-[UIView tintColorDidChange]", void>(*this);
}

void UIView::didMoveToSuperview() {
    sendToBase<"-[UIView didMoveToSuperview]", void>(*this);
}

void UIView::animateWithDuration(double duration, double delay, UIViewAnimationOptions options,
                                 const std::function<void()>& animations,
                                 std::function<void(bool finished)> completion) {
    sendToClass<"+[UIView animateWithDuration:delay:options:animations:completion:]", void>(
        duration, delay, options, animations, completion);
}
