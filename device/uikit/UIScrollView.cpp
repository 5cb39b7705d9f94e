#include "UIKit/UIScrollView.h"

#include "FrameworkClass.h"
#include "UIViewPeer.h"

namespace {

const FrameworkClassOf<UIScrollView, UIView> frameworkClass("UIScrollView");

} // namespace

UIScrollView::UIScrollView() = default;

UIScrollView::UIScrollView(std::unique_ptr<UIViewPeer> peer) : UIView(std::move(peer)) {}
