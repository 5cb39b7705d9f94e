#pragma once

#include "FontStyle.h"
#include "SystemColors.h"
#include "UIKit/UILabel.h"

#include <string_view>

/// A label of a welcome page, of as many lines as its text needs.
[[nodiscard]] Ref<UILabel> welcomeLabel(std::string_view text, const FontStyle& style, SystemColor color);

/// What a label needs at that width, in points.
[[nodiscard]] double heightOf(const UILabel& label, double width);
