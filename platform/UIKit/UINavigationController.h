#pragma once

#include "UIKit/UIViewController.h"

/// A stack of pages under a navigation bar.
class UINavigationController : public UIViewController {
public:
    UINavigationController();

    /// Puts a page on top of the stack and shows it.
    void pushViewController(const Ref<UIViewController>& controller, bool animated);
};
