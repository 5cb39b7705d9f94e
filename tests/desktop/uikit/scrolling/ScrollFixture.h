#pragma once

#include "screen/TouchFixture.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/RecordingViews.h"

#include <chrono>
#include <optional>

/// A scroll view of 300 x 600 points at (0, 100), clear of the safe area, with content of 300 x 2000.
class ScrollFixture : public TouchFixture {
protected:
    ScrollFixture() {
        scroll->setFrame(CGRectMake(0, 100, 300, 600));
        content->setFrame(CGRectMake(0, 0, 300, 2000));
        scroll->addSubview(content);
        peer.setContentSize({300, 2000});
        peer.panGestureRecognizer().addHandler([this] { panned(); });
        peer.addReleaseHandler([this](CGPoint& target) { released(target); });
        window->addSubview(scroll);
        screen.layoutIfNeeded();
    }

    [[nodiscard]] double offset() const { return peer.contentOffset().y; }

    /// Draws the contents upward by 10 points and then by `distance`, and holds still.
    void drawUp(double distance) {
        down(100, 650);
        move(100, 640);
        move(100, 640 - distance);
        advance(std::chrono::milliseconds(200));
    }

    /// Draws them up at 1000 points a second for a tenth of a second, and lets go.
    void flick() {
        down(100, 650);
        for (auto step = 1; step <= 11; ++step) {
            advance(std::chrono::milliseconds(10));
            move(100, 650 - 10 * step);
        }
        up(100, 540);
    }

    Ref<RecordingView> content = make<RecordingView>("content", events);
    Ref<UIScrollView> scroll = make<UIScrollView>();
    UIScrollViewPeer& peer = peerOf<UIScrollViewPeer>(*scroll);
    CGPoint proposed;              ///< where the contents would have come to rest when last let go
    std::optional<CGPoint> chosen; ///< where they are to come to rest instead

private:
    void panned() {
        if (peer.panGestureRecognizer().state() == GestureRecognizer::State::Began)
            events.emplace_back("begin dragging");
    }

    void released(CGPoint& target) {
        events.emplace_back("end dragging");
        proposed = target;
        target = chosen.value_or(target);
    }
};
