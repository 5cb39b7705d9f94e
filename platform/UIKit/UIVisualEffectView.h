#pragma once

#include "UIKit/UIBlurEffect.h"
#include "UIKit/UIView.h"

/// Shows what lies behind it on the screen through an effect.
class UIVisualEffectView : public UIView {
public:
    UIVisualEffectView();

    /// A new view; empty when it is refused. Without an effect it shows nothing.
    [[nodiscard]] static Ref<UIVisualEffectView> initWithEffect(const Ref<UIBlurEffect>& effect);
};
