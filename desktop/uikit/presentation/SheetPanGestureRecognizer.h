#pragma once

#include "touches/PanGestureRecognizer.h"

class SheetPresentationView;

/// The finger that draws a sheet down, and a little up. What scrolls in the sheet goes first unless it is at
/// its top and the finger moves down. Made by the sheet's view.
class SheetPanGestureRecognizer final : public PanGestureRecognizer {
public:
    /// \param sheet outlives the recogniser's view
    explicit SheetPanGestureRecognizer(SheetPresentationView& sheet);

    // GestureRecognizer:
    [[nodiscard]] bool shouldBegin() override;
    [[nodiscard]] bool goesBefore(const GestureRecognizer& other) const override;

private:
    void follow();

    SheetPresentationView& sheet_;
};
