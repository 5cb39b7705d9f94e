#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIViewController.h"
#include "touches/ScreenEdgePanGestureRecognizer.h"

class UINavigationControllerPeer;

/// The finger that draws a page aside, back to the one before. Made by the navigation controller.
class SwipeBackRecognizer final : public ScreenEdgePanGestureRecognizer {
public:
    /// \param navigation whose peer is a UINavigationControllerPeer
    explicit SwipeBackRecognizer(UIViewController& navigation);

    // GestureRecognizer:
    [[nodiscard]] bool shouldBegin() override;

private:
    void follow();
    /// How much of the width the finger has drawn the page aside.
    [[nodiscard]] double progress() const;
    [[nodiscard]] bool isEnough() const;

    Weak<UIViewController> navigation_;
};
