#include "navigation/UINavigationControllerPeer.h"
#include "scrolling/UIScrollViewPeer.h"

#include <algorithm>

namespace {

/// The first scroll view at or within a page's view, the outermost first; null when there is none.
UIScrollView* scrollViewOf(UIView& view) {
    if (auto* const found = dynamic_cast<UIScrollView*>(&view))
        return found;
    for (const auto& subview : view.peer().subviews()) {
        if (auto* const found = scrollViewOf(*subview))
            return found;
    }
    return nullptr;
}

/// 0 for one that is not beneath the bar.
double overlapAt(const UIScrollView& scrollView, double offset) {
    const auto& peer = peerOf<UIScrollViewPeer>(scrollView);
    return peer.safeAreaInsets().top > 0 ? offset + peer.adjustedContentInset().top : 0;
}

} // namespace

void UINavigationControllerPeer::followScroll(const Page& page) {
    auto* const scrollView = scrollViewOf(page.view->page());
    if (scrollView == nullptr)
        return;
    page.content->setOverlap(overlapAt(*scrollView, peerOf<UIScrollViewPeer>(*scrollView).contentOffset().y));
    bar().contentChanged();
    std::erase_if(followed_, [](const auto& followed) { return !followed.strong(); });
    const auto isFollowed = [scrollView](const auto& followed) {
        return followed.strong().get() == scrollView;
    };
    if (std::ranges::any_of(followed_, isFollowed))
        return;
    followed_.emplace_back(scrollView);
    const Weak<UIViewController> navigation(&controller());
    peerOf<UIScrollViewPeer>(*scrollView).addScrollHandler([navigation] {
        if (const auto living = navigation.strong())
            peerOf<UINavigationControllerPeer>(*living).scrolled();
    });
    peerOf<UIScrollViewPeer>(*scrollView).addReleaseHandler([navigation, scrollView](CGPoint& target) {
        if (const auto living = navigation.strong())
            peerOf<UINavigationControllerPeer>(*living).snapLargeTitle(*scrollView, target);
    });
}

void UINavigationControllerPeer::scrolled() {
    if (transition_) {
        followScroll(transition_->from());
        followScroll(transition_->to());
    } else if (shown_.view) {
        followScroll(shown_);
    }
}

void UINavigationControllerPeer::snapLargeTitle(const UIScrollView& scrolled, CGPoint& target) const {
    if (!shown_.content || !shown_.content->hasLargeTitle() || scrollViewOf(shown_.view->page()) != &scrolled)
        return;
    const auto overlap = overlapAt(scrolled, target.y);
    if (overlap <= 0 || overlap >= LargeTitleView::height)
        return;
    const auto open = target.y - overlap;
    const auto closed = open + LargeTitleView::height;
    const auto closes = overlap > LargeTitleView::height / 2 &&
                        closed <= peerOf<UIScrollViewPeer>(scrolled).maximumOffset().y;
    target.y = closes ? closed : open;
}
