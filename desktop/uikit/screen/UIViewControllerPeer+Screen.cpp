#include "controllers/UIViewControllerPeer.h"
#include "screen/Screen.h"

Ref<UIView> UIViewControllerPeer::makeView() {
    auto view = makeWith<UIView>(&UIView::initWithFrame, Screen::current().bounds());
    view->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    return view;
}
