#pragma once

#include "touches/ScreenEdgePanGestureRecognizer.h"

#include <functional>

/// The finger that draws an application up from the screen's lower edge, to the home screen. Made by the
/// shell, for the application's window.
class HomeSwipeRecognizer final : public ScreenEdgePanGestureRecognizer {
public:
    /// Whom it tells how far the finger has come.
    struct Follower {
        /// \param translation in points of the screen, upward below 0
        std::function<void(CGPoint translation)> drawn;
        std::function<void(bool goesHome)> released;
    };

    explicit HomeSwipeRecognizer(Follower follower);

private:
    void follow();
    [[nodiscard]] bool isEnough() const;

    Follower follower_;
};
