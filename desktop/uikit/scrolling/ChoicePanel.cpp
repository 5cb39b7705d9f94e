#include "scrolling/ChoicePanel.h"

#include "RectGeometry.h"
#include "scrolling/UIScrollViewPeer.h"

ChoicePanel::ChoicePanel(const Ref<FollowingControl>& choices)
    : choices_(choices),
      scroll_(make<UIScrollView>()) {
    peer().setAccessibility({}); // the choices are elements, it is none itself
    scroll_->addSubview(choices_);
}

void ChoicePanel::placeChoices(const CGRect& frame, double fullHeight) {
    scroll_->setFrame(frame);
    // Choices that all have room take a finger without the wait for what may become a drag.
    scroll_->setUserInteractionEnabled(fullHeight > frame.size.height);
    choices_->setFrame(CGRectMake(0, 0, frame.size.width, fullHeight));
    peerOf<UIScrollViewPeer>(*scroll_).setContentSize(choices_->bounds().size);
}

std::optional<CGPoint> ChoicePanel::placeAmongChoices(CGPoint place) const {
    if (!CGRectContainsPoint(scroll_->bounds(), peer().convertTo(*scroll_, place)))
        return std::nullopt;
    return peer().convertTo(*choices_, place);
}

void ChoicePanel::fingerMoved(CGPoint place) {
    if (const auto there = placeAmongChoices(place))
        choices_->fingerMoved(*there);
    else
        choices_->fingerGone();
}

void ChoicePanel::fingerLifted(CGPoint place) {
    if (const auto there = placeAmongChoices(place))
        choices_->fingerLifted(*there);
    else
        choices_->fingerGone();
}

void ChoicePanel::fingerGone() {
    choices_->fingerGone();
}
