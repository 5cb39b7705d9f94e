#include "controls/UIButton.h"

#include "ObjectiveC/Class.h"
#include "controls/UIButtonPeer.h"

namespace {

const Class classObject = Class::define<UIButton, UIControl>("UIButton");

} // namespace

UIButton::UIButton() : UIButton(std::make_unique<UIButtonPeer>()) {}

UIButton::UIButton(std::unique_ptr<UIButtonPeer> peer) : UIControl(std::move(peer)) {
    peerOf<UIButtonPeer>(*this).viewMade();
}
