#pragma once

#include "CALayerPeer.h"
#include "UIKit/UIColor.h"
#include "UIKit/_UIBackdropViewSettings.h"

/// A material: how what lies behind is blurred, and the colour that is laid over that. Immutable.
class DesktopBackdropSettings final : public _UIBackdropViewSettings {
public:
    DesktopBackdropSettings(const Backdrop& blur, Ref<UIColor> tint);

    [[nodiscard]] const Backdrop& blur() const { return blur_; }

    [[nodiscard]] const Ref<UIColor>& tint() const { return tint_; }

private:
    Backdrop blur_;
    Ref<UIColor> tint_;
};
