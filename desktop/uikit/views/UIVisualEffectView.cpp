#include "UIKit/UIVisualEffectView.h"

#include "ObjectiveC/Class.h"
#include "views/BackdropViewPeer.h"
#include "views/DesktopBlurEffect.h"

namespace {

const Class classObject = Class::define<UIVisualEffectView, UIView>("UIVisualEffectView");

/// A backdrop of an effect's material.
class UIVisualEffectViewPeer final : public BackdropViewPeer {
public:
    using Object = UIVisualEffectView;
};

} // namespace

UIVisualEffectView::UIVisualEffectView() : UIView(std::make_unique<UIVisualEffectViewPeer>()) {}

Ref<UIVisualEffectView> UIVisualEffectView::initWithEffect(const Ref<UIBlurEffect>& effect) {
    auto view = make<UIVisualEffectView>();
    if (const auto blur = dynamicCast<DesktopBlurEffect>(effect))
        peerOf<UIVisualEffectViewPeer>(*view).setSettings(blur->material());
    return view;
}
