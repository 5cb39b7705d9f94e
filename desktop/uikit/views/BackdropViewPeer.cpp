#include "views/BackdropViewPeer.h"

namespace {

constexpr auto followsSuperview = UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight;

} // namespace

void BackdropViewPeer::setSettings(const Ref<DesktopBackdropSettings>& settings) {
    if (!settings)
        return;
    layer().peer().backdrop = settings->blur();
    const auto tint = makeWith<UIView>(&UIView::initWithFrame, view().bounds());
    tint->setBackgroundColor(settings->tint());
    tint->setUserInteractionEnabled(false);
    tint->setAutoresizingMask(followsSuperview);
    insertSubview(tint, 0);
}

void BackdropViewPeer::didMoveToSuperview() {
    if (!autosizesToFitSuperview_ || superview() == nullptr)
        return;
    setAutoresizingMask(followsSuperview);
    setFrame(superview()->bounds());
}
