#pragma once

#include "touches/GestureRecognizer.h"

/// A short touch at one place. Leaves a tap on a control to the control. Made by whoever adds it to a view.
class TapGestureRecognizer : public GestureRecognizer {
public:
    // GestureRecognizer:
    [[nodiscard]] bool yieldsToControls() const override { return true; }

protected:
    // GestureRecognizer:
    void touchBegan(DesktopTouch& touch) override;
    void touchMoved(DesktopTouch& touch) override;
    void touchEnded(DesktopTouch& touch) override;

private:
    CGPoint start_;
};
