#include "views/BackdropViewPeer.h"

namespace {

constexpr auto followsSuperview = UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight;

} // namespace

void BackdropViewPeer::setSettings(const Ref<DesktopBackdropSettings>& settings) {
    if (!settings)
        return;
    layer().peer().backdrop = settings->blur();
    setBackgroundColor(settings->tint());
}

void BackdropViewPeer::didMoveToSuperview() {
    if (!autosizesToFitSuperview_ || superview() == nullptr)
        return;
    setAutoresizingMask(followsSuperview);
    setFrame(superview()->bounds());
}
