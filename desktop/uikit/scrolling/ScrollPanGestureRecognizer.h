#pragma once

#include "touches/PanGestureRecognizer.h"

class UIScrollViewPeer;

/// The pan that moves a scroll view's contents. Begins at once in contents that move, so that the touch stops
/// them. Made and kept by the scroll view's peer.
class ScrollPanGestureRecognizer final : public PanGestureRecognizer {
public:
    /// How long contents wait for a touch.
    static constexpr std::chrono::milliseconds contentDelay{150};

    explicit ScrollPanGestureRecognizer(UIScrollViewPeer& scroll) : scroll_(scroll) {}

    // GestureRecognizer:
    [[nodiscard]] bool shouldBegin() override;

    [[nodiscard]] std::chrono::nanoseconds contentTouchDelay() const override { return contentDelay; }

protected:
    // GestureRecognizer:
    void touchBegan(DesktopTouch& touch) override;

private:
    UIScrollViewPeer& scroll_; ///< as long as the recogniser has a view
};
