#pragma once

#include "AffineTransform.h"
#include "CoreGraphics/CGGeometry.h"
#include "Traits.h"
#include "UIKit/UIViewController.h"

#include <optional>

/// Where sheets are on a screen, and what becomes of what they cover. Lengths are in points.
struct SheetGeometry {
    Idiom idiom = Idiom::Phone;
    CGSize size;           ///< of the window
    UIEdgeInsets safeArea; ///< of the window
    double keyboardHeight = 0;
    std::optional<double> contentHeight = std::nullopt; ///< of a phone's card that need not fill the screen

    static constexpr double cornerRadius = 10;

    /// Where the card of a sheet is.
    [[nodiscard]] CGRect cardFrame(UIModalPresentationStyle style) const;

    /// How far a card is moved down to be out of sight.
    [[nodiscard]] double wayOut(const CGRect& card) const { return size.height - card.origin.y; }

    /// Whether what a sheet covers moves aside for it.
    [[nodiscard]] bool coveredStepsBack() const { return fillsPhone(); }

    /// Whether there is next to nothing beside the card that a finger could mean.
    [[nodiscard]] bool fillsPhone() const { return idiom == Idiom::Phone && !contentHeight; }

    /// What is done to a covered view of that frame. \param amount from 0, when it is where it was, to 1
    [[nodiscard]] AffineTransform steppedBack(const CGRect& frame, double amount) const;

    /// Whether a sheet that was drawn down and let go goes all the way.
    /// \param part how much of its way out it was drawn; \param speed of the finger, in ways out a second
    [[nodiscard]] static bool letGoDismisses(double part, double speed);
};
