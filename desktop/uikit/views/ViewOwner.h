#pragma once

class UIViewController;

/// Whom a view tells of what happens to it, as a page tells its controller. Outlives being the view's owner.
class ViewOwner {
public:
    virtual ~ViewOwner() = default;

    [[nodiscard]] virtual UIViewController& controller() const = 0;

    /// The view has placed its subviews.
    virtual void viewDidLayoutSubviews() = 0;

    /// The keyboard covers another height of the screen, or serves another text. Runs among the changes that
    /// the keyboard animates.
    virtual void keyboardDidChange() = 0;
};
