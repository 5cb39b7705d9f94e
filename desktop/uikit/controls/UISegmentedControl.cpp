#include "controls/UISegmentedControl.h"

#include "ObjectiveC/Class.h"
#include "controls/UISegmentedControlPeer.h"

#include <memory>

namespace {

const Class segmentedControlClass = Class::define<UISegmentedControl, UIControl>("UISegmentedControl");

} // namespace

UISegmentedControl::UISegmentedControl() : UIControl(std::make_unique<UISegmentedControlPeer>()) {
    peerOf<UISegmentedControlPeer>(*this).setUp();
}
