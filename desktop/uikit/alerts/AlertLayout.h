#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "UIKit/UIAlertAction.h"

#include <cstddef>
#include <vector>

/// Where the buttons of an alert are. Lengths are in points.
class AlertLayout {
public:
    static constexpr double width = 270; ///< of an alert
    static constexpr double buttonHeight = 44;
    static constexpr double buttonMargin = 8; ///< between a title and its button's sides

    /// \param titleWidths of the buttons, in the order in which they were added
    /// \param pixel its size
    AlertLayout(const std::vector<double>& titleWidths, double pixel);

    /// Whether the buttons are beside each other.
    [[nodiscard]] bool isBeside() const { return isBeside_; }

    /// The places in the order in which buttons were added, in the order in which they are shown: the one
    /// that cancels first beside others, and last below them.
    [[nodiscard]] std::vector<std::size_t> order(const std::vector<UIAlertActionStyle>& styles) const;

    /// Of all buttons, each with the line above it.
    [[nodiscard]] double height() const;

    /// Of the button shown at that place, with the line above it, from the upper leading corner of all.
    [[nodiscard]] CGRect frame(std::size_t place) const;

private:
    std::size_t count_;
    double rowHeight_;
    bool isBeside_;
};
