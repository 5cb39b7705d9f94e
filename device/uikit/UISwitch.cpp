#include "UIKit/UISwitch.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UISwitch, UIControl> frameworkClass("UISwitch");

} // namespace

UISwitch::UISwitch() = default;
