#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "UIKit/UIView.h"

#include <string>

/// What rises above a phone's key while a finger, which hides the key, is on it: the key drawn out upwards
/// into a larger one with its letter. Takes no touches. Made by the key, and put into it.
class KeyBalloon final : public UIView {
public:
    /// \param cap what is drawn of the key; like the frame, in the points of the view that this is put into
    /// \param frame as `frameFor` has it
    KeyBalloon(const CGRect& cap, const CGRect& frame, std::string text, double textSize);

    /// Where it is: above the key, and moved aside where that is too near an edge.
    /// \param room how far it may reach across
    [[nodiscard]] static CGRect frameFor(const CGRect& cap, const CGRect& room);
};
