#pragma once

#include "FontStyle.h"
#include "SystemColors.h"
#include "UIKit/UILabel.h"

#include <string>

/// A label of as many lines as its text needs.
[[nodiscard]] Ref<UILabel> wrappedLabel(const std::string& text, const FontStyle& style, SystemColor color,
                                        NSTextAlignment alignment = NSTextAlignment::Natural);

/// What a label needs at that width, in points.
[[nodiscard]] double heightOf(const UILabel& label, double width);
