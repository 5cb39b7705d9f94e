#include "CALayerPeer.h"
#include "RectGeometry.h"
#include "scrolling/ScrollFixture.h"
#include "scrolling/UIScrollViewPeer.h"
#include "touches/TapGestureRecognizer.h"

#include <cmath>

namespace {

using namespace std::chrono_literals;

/// Half a pixel of the screen.
constexpr double halfPixel = 1.0 / 6 + 1e-9;

class UIScrollViewPeerMotionTest : public ScrollFixture {};

TEST_F(UIScrollViewPeerMotionTest, ContentsBeyondAnEdgeLagBehind) {
    down(100, 300);
    move(100, 310);
    for (const auto distance : {10.0, 100.0, 300.0}) {
        move(100, 310 + distance);
        EXPECT_NEAR(offset(), -600 * (1 - 1 / (0.55 * distance / 600 + 1)), halfPixel) << distance;
    }
    move(100, 310);
    EXPECT_EQ(offset(), 0);
}

TEST_F(UIScrollViewPeerMotionTest, ContentsBeyondAnEdgeReturnWithoutASwing) {
    down(100, 300);
    move(100, 310);
    move(100, 510);
    advance(200ms);
    const auto from = offset();
    up(100, 510);
    EXPECT_TRUE(peer.isMoving());
    for (auto tick = 1; tick <= 20; ++tick) {
        advance(std::chrono::nanoseconds(1s) / 60);
        const auto time = tick / 60.0;
        EXPECT_NEAR(offset(), from * (1 + 15 * time) * std::exp(-15 * time), halfPixel) << tick;
    }
    advance(300ms);
    EXPECT_EQ(offset(), 0);
    EXPECT_FALSE(peer.isMoving());
}

TEST_F(UIScrollViewPeerMotionTest, ContentsMoveInEachFrameOfADisplayOf120ASecond) {
    down(100, 300);
    move(100, 310);
    move(100, 510);
    advance(200ms);
    up(100, 510);
    for (auto frame = 1; frame <= 12; ++frame) {
        const auto before = offset();
        advance(std::chrono::nanoseconds(1s) / 120);
        EXPECT_NE(offset(), before) << frame;
    }
}

TEST_F(UIScrollViewPeerMotionTest, CancelledDragReturnsFromBeyondAnEdge) {
    down(100, 300);
    move(100, 310);
    move(100, 510);
    cancel();
    EXPECT_LT(offset(), 0);
    settle();
    EXPECT_EQ(offset(), 0);
}

TEST_F(UIScrollViewPeerMotionTest, ContentsGoOnAndSlowDown) {
    flick();
    const auto from = offset();
    EXPECT_EQ(from, 100);
    const auto rate = -1000 * std::log(0.998);
    const auto speed = (proposed.y - from) * rate;
    EXPECT_NEAR(speed, 1000, 1);
    for (auto tick = 1; tick <= 60; ++tick) {
        advance(std::chrono::nanoseconds(1s) / 60);
        EXPECT_NEAR(offset(), from + speed / rate * (1 - std::pow(0.998, 1000 * tick / 60.0)), halfPixel)
            << tick;
    }
    settle();
    EXPECT_NEAR(offset(), from + speed / rate, halfPixel);
    EXPECT_EQ(events, (Events{"begin dragging", "end dragging"}));
    EXPECT_FALSE(peer.isMoving());
}

TEST_F(UIScrollViewPeerMotionTest, WhoeverHearsOfTheReleaseChoosesWhereContentsComeToRest) {
    chosen = CGPoint{0, 352};
    flick();
    settle();
    EXPECT_EQ(offset(), 352);
}

TEST_F(UIScrollViewPeerMotionTest, TouchStopsContentsAndIsEaten) {
    const auto tapRecognizer = make<TapGestureRecognizer>();
    content->peer().addGestureRecognizer(tapRecognizer);
    record(*tapRecognizer, "tap", events);
    flick();
    advance(100ms);
    takeEvents();
    down(100, 500);
    const auto stopped = offset();
    EXPECT_FALSE(peer.isMoving());
    advance(300ms);
    EXPECT_EQ(offset(), stopped);
    up(100, 500);
    settle();
    EXPECT_EQ(offset(), stopped);
    EXPECT_EQ(takeEvents(), (Events{"begin dragging", "end dragging"}));
    tap(100, 500);
    EXPECT_EQ(events.back(), "tap ended") << "contents at rest take taps";
}

TEST_F(UIScrollViewPeerMotionTest, CaughtContentsFollowTheFingerAtOnce) {
    flick();
    advance(100ms);
    down(100, 500);
    const auto caught = offset();
    move(100, 497);
    EXPECT_NEAR(offset(), caught + 3, halfPixel);
}

TEST_F(UIScrollViewPeerMotionTest, CaughtBeyondAnEdgeDoNotJump) {
    down(100, 300);
    move(100, 510);
    up(100, 510);
    advance(50ms);
    const auto caught = offset();
    ASSERT_LT(caught, -10);
    down(100, 400);
    move(100, 400);
    EXPECT_NEAR(offset(), caught, 2 * halfPixel);
    up(100, 400);
    settle();
    EXPECT_EQ(offset(), 0);
}

TEST_F(UIScrollViewPeerMotionTest, OffsetChangesInThreeTenthsOfASecond) {
    auto scrolls = 0;
    peer.addScrollHandler([&] { ++scrolls; });
    peer.setContentOffset({0, 500}, true);
    EXPECT_EQ(offset(), 0);
    advance(150ms);
    EXPECT_NEAR(offset(), 250, 1);
    advance(200ms);
    EXPECT_EQ(offset(), 500);
    EXPECT_FALSE(peer.isMoving());
    EXPECT_GT(scrolls, 10);
    peer.setContentOffset({0, -30});
    screen.layoutIfNeeded();
    EXPECT_EQ(offset(), -30) << "as it was told";
}

TEST_F(UIScrollViewPeerMotionTest, IndicatorShowsWhileContentsMove) {
    EXPECT_EQ(scroll->peer().subviews().front()->layer().peer().number(LayerProperty::Opacity), 0);
    drawUp(700);
    const auto& shown = *scroll->peer().subviews().back();
    EXPECT_EQ(shown.layer().peer().number(LayerProperty::Opacity), 1);
    EXPECT_EQ(shown.frame().size.width, 3);
    EXPECT_EQ(CGRectGetMaxX(shown.frame()), 297);
    EXPECT_NEAR(shown.frame().size.height, 594 * 600 / 2000.0, 1e-9);
    EXPECT_NEAR(shown.frame().origin.y - offset(), 3 + (594 - 594 * 0.3) * offset() / 1400, 1e-9);
    up(100, -60);
    const auto opacity = [&] { return shown.layer().peer().shownValue(LayerProperty::Opacity)[0]; };
    advance(240ms);
    EXPECT_EQ(opacity(), 1);
    advance(260ms);
    EXPECT_EQ(opacity(), 0);
}

TEST_F(UIScrollViewPeerMotionTest, ContentsBeyondAnEdgePressTheIndicatorTogetherButNotAway) {
    constexpr auto whole = 594 * 600 / 2000.0;
    down(100, 120);
    move(100, 130);
    move(100, 230);
    const auto& indicator = *scroll->peer().subviews().back();
    EXPECT_NEAR(indicator.frame().size.height, whole + offset(), 1e-9);
    move(100, 1030);
    EXPECT_LT(offset(), -whole);
    EXPECT_EQ(indicator.frame().size.height, 8);
}

TEST_F(UIScrollViewPeerMotionTest, MotionEndsWithItsWindow) {
    flick();
    advance(50ms);
    scroll->peer().removeFromSuperview();
    EXPECT_FALSE(peer.isMoving());
}

TEST_F(UIScrollViewPeerMotionTest, MayEndWhileItMoves) {
    const auto ending = make<UIScrollView>();
    const Weak<UIScrollView> watched(ending);
    {
        const auto owner = make<UIView>();
        owner->setFrame(screen.bounds());
        window->addSubview(owner);
        owner->addSubview(ending);
        peerOf<UIScrollViewPeer>(*ending).setContentSize({390, 2000});
        ending->setFrame(screen.bounds());
        peerOf<UIScrollViewPeer>(*ending).setContentOffset({0, 500}, true);
        advance(50ms);
        owner->peer().removeFromSuperview();
    }
    EXPECT_FALSE(ending->peer().superview());
    settle();
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*ending).contentOffset().y, 500);
    EXPECT_EQ(watched.strong(), ending);
}

} // namespace
