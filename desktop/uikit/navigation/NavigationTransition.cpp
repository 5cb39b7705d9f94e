#include "navigation/NavigationTransition.h"

#include "AnimationGroup.h"
#include "controllers/UIViewControllerPeer.h"
#include "views/UIViewPeer.h"

#include <utility>

NavigationTransition::NavigationTransition(Page from, Page to, Direction direction,
                                           const Ref<UINavigationBar>& bar)
    : from_(std::move(from)),
      to_(std::move(to)),
      direction_(direction),
      bar_(bar) {
    const auto bothHaveChevrons =
        from_.content->backButton() != nullptr && to_.content->backButton() != nullptr;
    from_.content->setKeepsChevron(bothHaveChevrons);
    to_.content->setKeepsChevron(bothHaveChevrons);
    AnimationGroup::runWithoutAnimation([this] {
        setProgress(0);
        to_.content->peer().layoutIfNeeded();
        to_.view->peer().layoutIfNeeded();
    });
}

void NavigationTransition::setProgress(double progress) {
    progress_ = progress;
    const auto isPush = direction_ == Direction::Push;
    const auto& above = isPush ? to_ : from_;
    const auto& beneath = isPush ? from_ : to_;
    const auto covered = isPush ? progress : 1 - progress;
    peerOf<UINavigationBarPeer>(*bar_).showBetween(
        {.from = from_.content, .to = to_.content, .progress = progress, .isPush = isPush});
    above.view->placeAbove(1 - covered);
    beneath.view->placeBeneath(covered);
    above.content->setPhase(1 - covered);
    beneath.content->setPhase(-covered);
    if (!isPush)
        to_.controller->peer().pageReturns(progress);
}
