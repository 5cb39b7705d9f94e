#pragma once

#include "touches/GestureRecognizer.h"

#include <chrono>
#include <vector>

/// A finger that draws something along; begins once it has moved by `slop`. Made by whoever adds it to a
/// view.
class PanGestureRecognizer : public GestureRecognizer {
public:
    /// How far a finger moves before that counts as a movement; points.
    static constexpr double slop = 10;

    /// How far the finger has come, in points of the screen, from where it had moved by `slop`. So what
    /// follows the finger does not jump.
    [[nodiscard]] CGPoint translation() const;

    /// How far the finger has come from where it came down.
    [[nodiscard]] CGPoint movement() const;

    /// Points a second, of the screen, over the last moments; nothing when the finger was held still.
    [[nodiscard]] CGPoint velocity() const;

protected:
    // GestureRecognizer:
    void touchBegan(DesktopTouch& touch) override;
    void touchMoved(DesktopTouch& touch) override;
    void touchEnded(DesktopTouch& touch) override;
    void didReset() override;

private:
    struct Sample {
        CGPoint place;
        std::chrono::nanoseconds time;
    };

    void record(const DesktopTouch& touch);

    CGPoint start_;
    CGPoint slopUsed_;            ///< the part of the movement that came before the gesture
    std::vector<Sample> samples_; ///< a few
};
