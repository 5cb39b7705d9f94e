#include "UIKit/UIScrollView.h"

#include "ObjectiveC/Class.h"
#include "scrolling/UIScrollViewPeer.h"

#include <utility>

namespace {

const Class classObject = Class::define<UIScrollView, UIView>("UIScrollView");

} // namespace

UIScrollView::UIScrollView() : UIScrollView(std::make_unique<UIScrollViewPeer>()) {}

UIScrollView::UIScrollView(std::unique_ptr<UIViewPeer> peer) : UIView(std::move(peer)) {
    peerOf<UIScrollViewPeer>(*this).viewMade();
}
