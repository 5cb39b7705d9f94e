#include "touches/GestureArena.h"

#include "UIKit/UIControl.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <iterator>

namespace {

/// Whether a control stands between the view that was touched and one around it.
bool isInControlWithin(const UIView& around, const UIView& hit) {
    for (const auto* view = &hit; view != nullptr && view != &around; view = view->peer().superview()) {
        if (dynamic_cast<const UIControl*>(view) != nullptr)
            return true;
    }
    return false;
}

bool accepts(const GestureRecognizer& recognizer, const DesktopTouch& touch, const UIView& hit) {
    return recognizer.isEnabled() && recognizer.state() == GestureRecognizer::State::Possible &&
           !recognizer.isWaiting() && !recognizer.isFollowing() && recognizer.receives(touch) &&
           !(recognizer.yieldsToControls() && isInControlWithin(*recognizer.view(), hit));
}

std::vector<Ref<GestureRecognizer>> recognizersAround(const UIView& hit) {
    std::vector<Ref<GestureRecognizer>> found;
    for (const auto* view = &hit; view != nullptr; view = view->peer().superview())
        std::ranges::transform(view->peer().gestureRecognizers(), std::back_inserter(found),
                               [](const auto& one) { return dynamicCast<GestureRecognizer>(one); });
    return found;
}

/// Whether `later`, of the same touch or an earlier one, is only recognised once `first` has failed.
bool goesBefore(const GestureRecognizer& first, const GestureRecognizer& later) {
    return first.isFollowing() && first.goesBefore(later);
}

} // namespace

GestureArena::~GestureArena() {
    for (const auto& recognizer : Members(members_))
        recognizer->leaveArena();
}

void GestureArena::touchBegan(DesktopTouch& touch, UIView& hit) {
    reconsider();
    auto entering = recognizersAround(hit);
    std::erase_if(entering, [&](const auto& one) { return !accepts(*one, touch, hit); });
    for (const auto& recognizer : entering) {
        if (std::ranges::find(members_, recognizer) == members_.end())
            members_.push_back(recognizer);
        recognizer->follow(*this, touch);
    }
    for (const auto& recognizer : entering) {
        if (recognizer->isFollowing(touch))
            recognizer->fingerCameDown(touch);
    }
}

void GestureArena::touchMoved(DesktopTouch& touch) {
    for (const auto& recognizer : Members(members_)) {
        if (recognizer->isFollowing(touch))
            recognizer->fingerMoved(touch);
    }
}

void GestureArena::touchEnded(DesktopTouch& touch) {
    for (const auto& recognizer : Members(members_)) {
        if (recognizer->isFollowing(touch))
            recognizer->fingerLifted(touch);
    }
}

void GestureArena::touchCancelled(DesktopTouch& touch) {
    for (const auto& recognizer : Members(members_)) {
        if (recognizer->isFollowing(touch))
            recognizer->loseTouch();
    }
}

void GestureArena::touchTakenFrom(const UIView& view) {
    for (const auto& recognizer : Members(members_)) {
        if (recognizer->view() != nullptr && recognizer->view()->peer().isDescendantOf(view))
            recognizer->loseTouch();
    }
}

std::chrono::nanoseconds GestureArena::holdTime(const UIView& hit) const {
    std::chrono::nanoseconds longest{};
    for (const auto& recognizer : members_) {
        if (recognizer->isFollowing() && recognizer->isUndecided() && recognizer->view() != &hit)
            longest = std::max(longest, recognizer->contentTouchDelay());
    }
    return longest;
}

bool GestureArena::mustWait(const GestureRecognizer& recognizer) const {
    return std::ranges::any_of(members_, [&](const auto& other) {
        return other.get() != &recognizer && other->isUndecided() && goesBefore(*other, recognizer);
    });
}

void GestureArena::recognized(GestureRecognizer& winner) {
    if (!winner.isFollowing())
        return;
    deciding_ = true;
    for (const auto& other : Members(members_)) {
        const auto loses = other->isFollowing() || (other->isWaiting() && goesBefore(winner, *other));
        if (other.get() != &winner && loses)
            other->fail();
    }
    deciding_ = false;
    reconsider();
    if (winner.isFollowing())
        takeTouch_();
}

void GestureArena::reconsider() {
    if (deciding_)
        return;
    for (const auto& recognizer : Members(members_)) {
        if (recognizer->isWaiting() && !mustWait(*recognizer))
            recognizer->recognizeWaiting();
    }
}

void GestureArena::remove(const GestureRecognizer& recognizer) {
    std::erase_if(members_, [&](const auto& one) { return one.get() == &recognizer; });
}
