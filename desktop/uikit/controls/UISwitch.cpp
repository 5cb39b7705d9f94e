#include "UIKit/UISwitch.h"

#include "ObjectiveC/Class.h"
#include "controls/UISwitchPeer.h"

#include <memory>

namespace {

const Class switchClass = Class::define<UISwitch, UIControl>("UISwitch");

} // namespace

UISwitch::UISwitch() : UIControl(std::make_unique<UISwitchPeer>()) {
    peerOf<UISwitchPeer>(*this).setUp();
}
