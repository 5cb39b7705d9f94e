#include "HomeSwipeRecognizer.h"

#include "views/UIViewPeer.h"

#include <utility>

namespace {

constexpr double enoughProgress = 0.2; ///< of the height
constexpr double flickSpeed = 0.5;     ///< heights in a second

} // namespace

HomeSwipeRecognizer::HomeSwipeRecognizer(Follower follower) : follower_(std::move(follower)) {
    setEdge(Edge::Bottom);
    addHandler([this] { follow(); });
}

void HomeSwipeRecognizer::follow() {
    if (view() == nullptr)
        return;
    if (state() == State::Began || state() == State::Changed)
        follower_.drawn(translation());
    else
        follower_.released(state() == State::Ended && isEnough());
}

bool HomeSwipeRecognizer::isEnough() const {
    const auto height = view()->bounds().size.height;
    const auto upwardSpeed = -velocity().y / height;
    if (upwardSpeed < -flickSpeed)
        return false;
    return upwardSpeed > flickSpeed || -translation().y / height > enoughProgress;
}
