#include "UIKit/_UIBackdropView.h"

#include "ObjectiveC/Class.h"
#include "views/BackdropViewPeer.h"

namespace {

const Class classObject = Class::define<_UIBackdropView, UIView>("_UIBackdropView");

} // namespace

_UIBackdropView::_UIBackdropView() : UIView(std::make_unique<BackdropViewPeer>()) {}

Ref<_UIBackdropView> _UIBackdropView::initWithFrame(const CGRect& frame, bool autosizesToFitSuperview,
                                                    const Ref<_UIBackdropViewSettings>& settings) {
    auto view = make<_UIBackdropView>();
    view->setFrame(frame);
    auto& peer = peerOf<BackdropViewPeer>(*view);
    peer.setSettings(dynamicCast<DesktopBackdropSettings>(settings));
    peer.setAutosizesToFitSuperview(autosizesToFitSuperview);
    return view;
}
