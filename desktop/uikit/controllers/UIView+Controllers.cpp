#include "UIKit/UIViewController.h"
#include "views/UIViewPeer.h"

Ref<UIViewController> UIView::_viewControllerForAncestor() const {
    for (const auto* view = this; view != nullptr; view = view->peer().superview()) {
        if (auto* const controller = view->peer().controller())
            return retain(controller);
    }
    return nullptr;
}
