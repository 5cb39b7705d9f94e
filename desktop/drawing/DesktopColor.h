#pragma once

#include "SystemColors.h"
#include "Traits.h"
#include "UIKit/UIColor.h"

#include <optional>

/// A fixed colour, or one of the system's, which depends on the appearance. Immutable.
class DesktopColor final : public UIColor {
public:
    explicit DesktopColor(const ColorComponents& fixed) : fixed_(fixed) {}

    explicit DesktopColor(SystemColor role) : role_(role) {}

    [[nodiscard]] static Ref<UIColor> system(SystemColor role) { return make<DesktopColor>(role); }

    [[nodiscard]] static Ref<UIColor> fixed(const ColorComponents& components) {
        return make<DesktopColor>(components);
    }

    /// What a colour looks like there; clear for none.
    [[nodiscard]] static ColorComponents resolve(const Ref<UIColor>& color, const Traits& traits);

private:
    ColorComponents fixed_{};
    std::optional<SystemColor> role_;
};
