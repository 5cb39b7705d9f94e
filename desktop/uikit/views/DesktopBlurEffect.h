#pragma once

#include "UIKit/UIBlurEffect.h"
#include "views/DesktopBackdropSettings.h"

#include <utility>

/// A material by the name of an effect. Immutable.
class DesktopBlurEffect final : public UIBlurEffect {
public:
    explicit DesktopBlurEffect(Ref<DesktopBackdropSettings> material) : material_(std::move(material)) {}

    [[nodiscard]] const Ref<DesktopBackdropSettings>& material() const { return material_; }

private:
    Ref<DesktopBackdropSettings> material_;
};
