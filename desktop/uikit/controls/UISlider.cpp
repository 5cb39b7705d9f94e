#include "controls/UISlider.h"

#include "ObjectiveC/Class.h"
#include "controls/UISliderPeer.h"

#include <memory>

namespace {

const Class sliderClass = Class::define<UISlider, UIControl>("UISlider");

} // namespace

UISlider::UISlider() : UIControl(std::make_unique<UISliderPeer>()) {
    peerOf<UISliderPeer>(*this).setUp();
}
