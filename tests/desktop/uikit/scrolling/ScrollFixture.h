#pragma once

#include "screen/TouchFixture.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/RecordingViews.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A scroll view's peer that writes down what its hooks hear.
class RecordingScrollPeer final : public UIScrollViewPeer {
public:
    explicit RecordingScrollPeer(std::vector<std::string>& events) : events_(events) {}

    // UIScrollViewPeer:
    void didScroll() override { ++scrolls; }

    void willBeginDragging() override { events_.emplace_back("begin dragging"); }

    void willEndDragging(CGPoint velocity, CGPoint& target) override {
        events_.emplace_back("end dragging");
        lastVelocity = velocity;
        proposed = target;
        if (chosen)
            target = *chosen;
    }

    void didEndScrolling() override { events_.emplace_back("at rest"); }

    int scrolls = 0;
    CGPoint lastVelocity;
    CGPoint proposed;
    std::optional<CGPoint> chosen;

private:
    std::vector<std::string>& events_;
};

class RecordingScrollView final : public UIScrollView {
public:
    explicit RecordingScrollView(std::vector<std::string>& events)
        : UIScrollView(std::make_unique<RecordingScrollPeer>(events)) {}
};

/// A scroll view of 300 x 600 points at (0, 100), clear of the safe area, with content of 300 x 2000.
class ScrollFixture : public TouchFixture {
protected:
    ScrollFixture() : peer(peerOf<RecordingScrollPeer>(*scroll)) {
        scroll->setFrame(CGRectMake(0, 100, 300, 600));
        content->setFrame(CGRectMake(0, 0, 300, 2000));
        scroll->addSubview(content);
        peer.setContentSize({300, 2000});
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
    Ref<UIScrollView> scroll = make<RecordingScrollView>(events);
    RecordingScrollPeer& peer;
};
