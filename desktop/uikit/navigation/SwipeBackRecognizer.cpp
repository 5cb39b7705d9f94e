#include "navigation/SwipeBackRecognizer.h"

#include "navigation/UINavigationControllerPeer.h"
#include "views/UIViewPeer.h"

namespace {

constexpr auto enoughProgress = 0.5;
constexpr auto flickSpeed = 1.0; ///< widths of the page in a second

} // namespace

SwipeBackRecognizer::SwipeBackRecognizer(UIViewController& navigation)
    : navigation_(Weak<UIViewController>(&navigation)) {
    addHandler([this] { follow(); });
}

bool SwipeBackRecognizer::shouldBegin() {
    const auto navigation = navigation_.strong();
    return navigation && peerOf<UINavigationControllerPeer>(*navigation).canPopInteractively() &&
           ScreenEdgePanGestureRecognizer::shouldBegin();
}

void SwipeBackRecognizer::follow() {
    const auto navigation = navigation_.strong();
    if (!navigation || view() == nullptr)
        return;
    auto& peer = peerOf<UINavigationControllerPeer>(*navigation);
    switch (state()) {
    case State::Began:
        peer.beginInteractivePop();
        peer.updateInteractivePop(progress());
        break;
    case State::Changed:
        peer.updateInteractivePop(progress());
        break;
    case State::Ended:
        peer.endInteractivePop(isEnough());
        break;
    default:
        peer.endInteractivePop(false);
    }
}

double SwipeBackRecognizer::progress() const {
    return translation().x * view()->peer().rightward() / view()->bounds().size.width;
}

bool SwipeBackRecognizer::isEnough() const {
    const auto speed = velocity().x * view()->peer().rightward() / view()->bounds().size.width;
    if (speed < -flickSpeed)
        return false;
    return speed > flickSpeed || progress() > enoughProgress;
}
