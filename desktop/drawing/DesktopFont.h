#pragma once

#include "FontStyle.h"
#include "UIKit/UIFont.h"

/// A size and weight of the text face. Immutable.
class DesktopFont final : public UIFont {
public:
    explicit DesktopFont(const FontStyle& style) : style_(style) {}

    [[nodiscard]] static Ref<UIFont> font(double size, FontWeight weight = FontWeight::Regular);

    /// What the font is; the system's 17 points for none.
    [[nodiscard]] static FontStyle styleOf(const Ref<UIFont>& font);

private:
    FontStyle style_;
};
