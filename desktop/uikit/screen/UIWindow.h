#pragma once

#include "UIKit/UIView.h"
#include "UIKit/UIViewController.h"

/// A root of views on the screen. Passes touches through where none of its views takes them. Made by an
/// application, owned by the screen.
class UIWindow final : public UIView {
public:
    UIWindow();
    ~UIWindow() override;

    /// The controller whose view fills the window; may be empty. It appears while the window is on the
    /// screen.
    void setRootViewController(const Ref<UIViewController>& controller);

    [[nodiscard]] const Ref<UIViewController>& rootViewController() const { return rootViewController_; }

    /// Windows of a higher level are in front of those of a lower one; 0 for an application's. Set before the
    /// window is added to the screen.
    void setWindowLevel(double level) { windowLevel_ = level; }

    [[nodiscard]] double windowLevel() const { return windowLevel_; }

    /// Called by the screen when it takes the window in, and when it lets it go; then all that is presented
    /// in it is gone.
    void setOnScreen(bool onScreen);

private:
    void rootAppears();
    void rootDisappears();

    Ref<UIViewController> rootViewController_;
    double windowLevel_ = 0;
    bool isOnScreen_ = false;
};
