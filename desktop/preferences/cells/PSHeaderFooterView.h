#pragma once

#include "Preferences/PSSpecifier.h"
#include "UIKit/UIView.h"

#include <optional>

/// What a view of a class that a list names may answer, by selector, besides being a view.
struct PSHeaderFooterView {
    /// Readies a new view for a group with "initWithSpecifier:", in place of its other initialisers.
    /// \returns whether it is ready; nothing when the view has no such initialiser
    [[nodiscard]] static std::optional<bool> init(UIView& view, PSSpecifier& specifier);

    /// What the view answers to "preferredHeightForWidth:", in points; nothing when it does not answer.
    [[nodiscard]] static std::optional<double> preferredHeight(UIView& view, double width);
};
