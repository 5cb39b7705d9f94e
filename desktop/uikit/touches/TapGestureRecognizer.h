#pragma once

#include "touches/GestureRecognizer.h"

/// One or more short touches at one place. Leaves a single tap on a control to the control. Made by whoever
/// adds it to a view.
class TapGestureRecognizer : public GestureRecognizer {
public:
    void setNumberOfTapsRequired(unsigned taps) { required_ = taps; }

    // GestureRecognizer:
    [[nodiscard]] bool yieldsToControls() const override { return required_ == 1; }

protected:
    // GestureRecognizer:
    void touchBegan(DesktopTouch& touch) override;
    void touchMoved(DesktopTouch& touch) override;
    void touchEnded(DesktopTouch& touch) override;

    void timeIsUp() override { fail(); }

    void didReset() override { taps_ = 0; }

private:
    unsigned required_ = 1;
    unsigned taps_ = 0; ///< that are over
    CGPoint start_;
};
