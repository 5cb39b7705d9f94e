#include "UIKit/UIControl.h"

#include "FrameworkClass.h"
#include "UIViewPeer.h"

namespace {

class SystemTouch final : public UITouch {
public:
    [[nodiscard]] CGPoint locationInView(const UIView& view) const override {
        return send<"-[UITouch locationInView:]", CGPoint>(*this, view);
    }
};

const FrameworkClassOf<SystemTouch> touchClass("UITouch");
const FrameworkClassOf<UIEvent> eventClass("UIEvent");

const FrameworkClassOf<UIControl, UIView> frameworkClass(
    "UIControl",
    {overridable<"-[UIControl beginTrackingWithTouch:withEvent:]", &UIControl::beginTrackingWithTouch>(),
     overridable<"-[UIControl continueTrackingWithTouch:withEvent:]",
                 &UIControl::continueTrackingWithTouch>(),
     overridable<"-[UIControl endTrackingWithTouch:withEvent:]", &UIControl::endTrackingWithTouch>(),
     overridable<"-[UIControl cancelTrackingWithEvent:]", &UIControl::cancelTrackingWithEvent>()});

} // namespace

UIControl::UIControl() = default;

UIControl::UIControl(std::unique_ptr<UIViewPeer> peer) : UIView(std::move(peer)) {}

void UIControl::addTarget(NSObject& target, std::string_view selector, UIControlEvents events) {
    send<"-[UIControl addTarget:action:forControlEvents:]", void>(
        *this, target, sel_registerName(std::string(selector).c_str()), events);
}

void UIControl::sendActionsForControlEvents(UIControlEvents events) {
    send<"-[UIControl sendActionsForControlEvents:]", void>(*this, events);
}

void UIControl::setContentHorizontalAlignment(UIControlContentHorizontalAlignment alignment) {
    send<"-[UIControl setContentHorizontalAlignment:]", void>(*this, alignment);
}

void UIControl::setContentVerticalAlignment(UIControlContentVerticalAlignment alignment) {
    send<"-[UIControl setContentVerticalAlignment:]", void>(*this, alignment);
}

bool UIControl::isTracking() const {
    return send<"-[UIControl isTracking]", bool>(*this);
}

bool UIControl::beginTrackingWithTouch(UITouch& touch, UIEvent* event) {
    return sendToBase<"-[UIControl beginTrackingWithTouch:withEvent:]", bool>(*this, touch, event);
}

bool UIControl::continueTrackingWithTouch(UITouch& touch, UIEvent* event) {
    return sendToBase<"-[UIControl continueTrackingWithTouch:withEvent:]", bool>(*this, touch, event);
}

void UIControl::endTrackingWithTouch(UITouch& touch, UIEvent* event) {
    sendToBase<"-[UIControl endTrackingWithTouch:withEvent:]", void>(*this, touch, event);
}

void UIControl::cancelTrackingWithEvent(UIEvent* event) {
    sendToBase<"-[UIControl cancelTrackingWithEvent:]", void>(*this, event);
}
