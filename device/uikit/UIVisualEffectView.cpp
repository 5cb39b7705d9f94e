#include "UIKit/UIVisualEffectView.h"

#include "FrameworkClass.h"
#include "UIViewPeer.h"

namespace {

const FrameworkClassOf<UIBlurEffect> effectClass("UIBlurEffect");
const FrameworkClassOf<UIVisualEffectView, UIView> frameworkClass("UIVisualEffectView");

} // namespace

UIVisualEffectView::UIVisualEffectView() = default;

Ref<UIVisualEffectView> UIVisualEffectView::initWithEffect(const Ref<UIBlurEffect>& effect) {
    return makeObject<"-[UIVisualEffectView initWithEffect:]", UIVisualEffectView>(effect);
}

Ref<UIBlurEffect> UIBlurEffect::effectWithStyle(UIBlurEffectStyle style) {
    return sendToClass<"+[UIBlurEffect effectWithStyle:]", Ref<UIBlurEffect>>(style);
}
