#include "presentation/SheetPanGestureRecognizer.h"

#include "ObjectiveC/Class.h"
#include "presentation/SheetPresentationView.h"
#include "scrolling/UIScrollViewPeer.h"

#include <cmath>

namespace {

const Class classObject =
    Class::define<SheetPanGestureRecognizer, PanGestureRecognizer>("SheetPanGestureRecognizer");

bool isAtItsTop(const UIScrollView& scroll) {
    const auto& peer = peerOf<UIScrollViewPeer>(scroll);
    return peer.contentOffset().y <= peer.minimumOffset().y;
}

} // namespace

SheetPanGestureRecognizer::SheetPanGestureRecognizer(SheetPresentationView& sheet) : sheet_(sheet) {
    addHandler([this] { follow(); });
}

bool SheetPanGestureRecognizer::shouldBegin() {
    const auto moved = movement();
    if (std::abs(moved.y) <= std::abs(moved.x))
        return false;
    const auto touched = touch() != nullptr ? touch()->view() : nullptr;
    for (const auto* around = touched.get(); around != nullptr && around != view();
         around = around->peer().superview()) {
        const auto* const scroll = dynamic_cast<const UIScrollView*>(around);
        if (scroll != nullptr && peerOf<UIScrollViewPeer>(*scroll).canScrollAlong(moved) &&
            (moved.y < 0 || !isAtItsTop(*scroll)))
            return false;
    }
    return true;
}

bool SheetPanGestureRecognizer::goesBefore(const GestureRecognizer& other) const {
    const auto* const scroll = dynamic_cast<const UIScrollView*>(other.view());
    return scroll != nullptr && &peerOf<UIScrollViewPeer>(*scroll).panGestureRecognizer() == &other &&
           !peerOf<UIScrollViewPeer>(*scroll).isMoving() && isAtItsTop(*scroll);
}

void SheetPanGestureRecognizer::follow() {
    if (view() == nullptr)
        return;
    const auto kept = retain(view());
    if (state() == State::Ended)
        sheet_.letGo(translation().y, velocity().y);
    else if (state() == State::Cancelled)
        sheet_.letGo(0, 0);
    else
        sheet_.drag(translation().y);
}
