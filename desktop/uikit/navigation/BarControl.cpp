#include "navigation/BarControl.h"

#include "AnimationGroup.h"
#include "ObjectiveC/Class.h"
#include "controls/UIControlPeer.h"

#include <chrono>
#include <utility>

namespace {

const Class classObject = Class::define<BarControl, UIControl>("BarControl");

constexpr auto pressedAlpha = 0.2;
constexpr auto fadeTime = std::chrono::milliseconds(250);

class BarControlPeer final : public UIControlPeer {
public:
    // UIControlPeer:
    void stateDidChange() override { dynamic_cast<BarControl&>(control()).updateLook(); }

    void tintColorDidChange() override {
        UIControlPeer::tintColorDidChange();
        setNeedsLayout(); // which is when titles take their colour
    }
};

} // namespace

BarControl::BarControl() : UIControl(std::make_unique<BarControlPeer>()), content_(make<UIView>()) {
    content_->setUserInteractionEnabled(false);
    addSubview(content_);
}

void BarControl::layoutSubviews() {
    UIControl::layoutSubviews();
    content_->setFrame(bounds());
}

void BarControl::setHeld(bool held) {
    isHeld_ = held;
    updateLook();
}

void BarControl::updateLook() {
    const auto pale = isHeld_ || peerOf<UIControlPeer>(*this).isHighlighted();
    if (std::exchange(isPale_, pale) == pale)
        return;
    if (pale) {
        content_->setAlpha(pressedAlpha);
        return;
    }
    AnimationGroup::run({.duration = fadeTime}, [this] { content_->setAlpha(1); }, {});
}
