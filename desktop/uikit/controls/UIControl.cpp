#include "UIKit/UIControl.h"

#include "ObjectiveC/Class.h"
#include "controls/UIControlPeer.h"

#include <string>
#include <utility>

namespace {

const Class classObject = Class::define<UIControl, UIView>("UIControl");
const Class eventClass = Class::define<UIEvent>("UIEvent");
const Class touchClass = Class::define<UITouch>("UITouch");

/// Of a control that shows nothing but what its layer has.
class PlainControlPeer final : public UIControlPeer {
public:
    // LayerDelegate:
    [[nodiscard]] bool hasContents() const override { return false; }
};

} // namespace

UIControl::UIControl() : UIView(std::make_unique<PlainControlPeer>()) {}

UIControl::UIControl(std::unique_ptr<UIViewPeer> peer) : UIView(std::move(peer)) {}

void UIControl::addTarget(NSObject& target, std::string_view selector, UIControlEvents events) {
    peerOf<UIControlPeer>(*this).addTarget(target, std::string(selector), events);
}

void UIControl::sendActionsForControlEvents(UIControlEvents events) {
    peerOf<UIControlPeer>(*this).sendActions(events, nullptr);
}

void UIControl::setContentHorizontalAlignment(UIControlContentHorizontalAlignment alignment) {
    peerOf<UIControlPeer>(*this).setHorizontalAlignment(alignment);
}

void UIControl::setContentVerticalAlignment(UIControlContentVerticalAlignment alignment) {
    peerOf<UIControlPeer>(*this).setVerticalAlignment(alignment);
}

bool UIControl::isTracking() const {
    return peerOf<UIControlPeer>(*this).isTracking();
}

bool UIControl::beginTrackingWithTouch(UITouch& /*touch*/, UIEvent* /*event*/) {
    return true;
}

bool UIControl::continueTrackingWithTouch(UITouch& /*touch*/, UIEvent* /*event*/) {
    return true;
}

void UIControl::endTrackingWithTouch(UITouch& /*touch*/, UIEvent* /*event*/) {}

void UIControl::cancelTrackingWithEvent(UIEvent* /*event*/) {}
