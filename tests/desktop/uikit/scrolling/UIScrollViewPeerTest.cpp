#include "scrolling/UIScrollViewPeer.h"

#include "scrolling/ScrollFixture.h"

namespace {

using namespace std::chrono_literals;

/// Half a pixel of the screen.
constexpr double halfPixel = 1.0 / 6 + 1e-9;

class UIScrollViewPeerTest : public ScrollFixture {};

TEST_F(UIScrollViewPeerTest, ContentsFollowTheFingerAfterTheFirstTenPoints) {
    down(100, 500);
    move(100, 491);
    EXPECT_EQ(offset(), 0);
    EXPECT_FALSE(peer.isDragging());
    move(100, 480);
    EXPECT_TRUE(peer.isDragging());
    EXPECT_EQ(offset(), 10);
    move(150, 400);
    EXPECT_EQ(peer.contentOffset(), (CGPoint{0, 90}));
    advance(200ms);
    up(150, 400);
    EXPECT_FALSE(peer.isDragging());
    EXPECT_EQ(offset(), 90);
    EXPECT_EQ(events, (Events{"begin dragging", "end dragging"}));
}

TEST_F(UIScrollViewPeerTest, ContentHearsOfATouchThatStaysForAMoment) {
    down(100, 500);
    advance(149ms);
    EXPECT_EQ(events, Events());
    advance(1ms);
    EXPECT_EQ(events, Events{"content began"});
    up(100, 500);
    EXPECT_EQ(events, (Events{"content began", "content ended"}));
}

TEST_F(UIScrollViewPeerTest, ContentHearsOfAQuickTapWhenItIsOver) {
    tap(100, 500);
    EXPECT_EQ(events, (Events{"content began", "content ended"}));
    settle();
    EXPECT_EQ(events.size(), 2U);
}

TEST_F(UIScrollViewPeerTest, ContentNeverHearsOfAQuickDrag) {
    down(100, 500);
    advance(100ms);
    move(100, 480);
    advance(100ms);
    up(100, 480);
    EXPECT_EQ(events, (Events{"begin dragging", "end dragging"}));
}

TEST_F(UIScrollViewPeerTest, LateDragTakesTheTouchFromTheContent) {
    down(100, 500);
    advance(150ms);
    move(100, 495);
    move(100, 480);
    EXPECT_EQ(events, (Events{"content began", "content moved", "content cancelled", "begin dragging"}));
}

TEST_F(UIScrollViewPeerTest, ControlThatHasTheTouchKeepsIt) {
    const auto control = make<RecordingControl>(events);
    control->setFrame(CGRectMake(0, 300, 300, 100));
    content->addSubview(control);
    down(100, 450);
    advance(150ms);
    move(100, 400);
    EXPECT_EQ(takeEvents(), (Events{"begin t", "down th", "continue th", "drag inside th"}));
    EXPECT_EQ(offset(), 0);
    up(100, 400);
    takeEvents();
    down(100, 450);
    move(100, 400);
    EXPECT_EQ(takeEvents(), Events{"begin dragging"}) << "but a quick drag is the scroll view's";
    EXPECT_EQ(offset(), 40);
}

TEST_F(UIScrollViewPeerTest, DragGoesOnFromAnOffsetSetMeanwhile) {
    drawUp(100);
    peer.setContentOffset({0, 700});
    move(100, 530);
    EXPECT_NEAR(offset(), 710, halfPixel);
}

TEST_F(UIScrollViewPeerTest, ContentsThatFitAreNotMoved) {
    peer.setContentSize({300, 500});
    drawUp(100);
    EXPECT_EQ(offset(), 0);
    up(100, 540);
    peer.setAlwaysBounceVertical(true);
    drawUp(100);
    EXPECT_GT(offset(), 0);
    up(100, 540);
    settle();
    EXPECT_EQ(offset(), 0);
}

TEST_F(UIScrollViewPeerTest, SidewaysDragIsNotTheScrollViews) {
    down(100, 500);
    move(150, 500);
    move(150, 400);
    EXPECT_EQ(offset(), 0);
}

TEST_F(UIScrollViewPeerTest, ContentsThatShrinkComeBackWithinTheEdges) {
    peer.setContentOffset({0, 1400});
    peer.setContentSize({300, 1000});
    EXPECT_EQ(offset(), 400);
}

TEST_F(UIScrollViewPeerTest, TallerViewComesBackWithinTheEdges) {
    peer.setContentOffset({0, 1400});
    scroll->setFrame(CGRectMake(0, 100, 300, 700));
    screen.layoutIfNeeded();
    EXPECT_EQ(offset(), 1300);
}

TEST_F(UIScrollViewPeerTest, StartsBelowTheSafeArea) {
    const auto full = make<UIScrollView>();
    full->setFrame(screen.bounds());
    peerOf<UIScrollViewPeer>(*full).setContentSize({390, 2000});
    peerOf<UIScrollViewPeer>(*full).setContentInset({.top = 10, .left = 0, .bottom = 5, .right = 0});
    window->addSubview(full);
    screen.layoutIfNeeded();
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*full).contentOffset(), (CGPoint{0, -57}));
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*full).adjustedContentInset(),
              (UIEdgeInsets{.top = 57, .left = 0, .bottom = 39, .right = 0}));
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*full).maximumOffset().y, 2000 + 39 - 844);
    window->peer().setAdditionalSafeAreaInsets({.top = 91, .left = 0, .bottom = 34, .right = 0});
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*full).contentOffset(), (CGPoint{0, -101})) << "the bar grew";
    full->peer().removeFromSuperview();
}

TEST_F(UIScrollViewPeerTest, StaysAtTheTopWhenItLeavesTheSafeAreasEdgeAndItsContentChangesAtOnce) {
    const auto full = make<UIScrollView>();
    full->setFrame(screen.bounds());
    window->addSubview(full);
    screen.layoutIfNeeded();
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*full).contentOffset().y, -47);
    full->setFrame(CGRectMake(0, 57, 390, 787));
    peerOf<UIScrollViewPeer>(*full).setContentSize({390, 785});
    screen.layoutIfNeeded();
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*full).contentOffset().y, 0);
    full->peer().removeFromSuperview();
}

TEST_F(UIScrollViewPeerTest, RectIsBroughtIntoViewByAsLittleAsNeeded) {
    struct Case {
        double top;
        double offset;
    };

    peer.setContentOffset({0, 500});
    for (const auto& [top, expected] :
         {Case{600, 500}, Case{1090, 540}, Case{560, 540}, Case{300, 300}, Case{-90, 0}, Case{1990, 1400}}) {
        peer.scrollRectToVisible(CGRectMake(0, top, 300, 50), false);
        EXPECT_EQ(offset(), expected) << top;
    }
}

TEST_F(UIScrollViewPeerTest, WheelMovesWithinTheEdges) {
    peer.scrollBy({0, 40});
    EXPECT_EQ(offset(), 40);
    peer.scrollBy({30, -100});
    EXPECT_EQ(peer.contentOffset(), CGPoint());
    peer.scrollBy({0, 5000});
    EXPECT_EQ(offset(), 1400);
}

TEST_F(UIScrollViewPeerTest, OthersHearOfEachChange) {
    std::vector<double> offsets;
    peer.addScrollHandler([&] { offsets.push_back(offset()); });
    peer.setContentOffset({0, 10});
    peer.setContentOffset({0, 10});
    peer.setContentOffset({0, 30});
    EXPECT_EQ(offsets, (std::vector<double>{10, 30}));
}

TEST_F(UIScrollViewPeerTest, SidewaysContentsWithinScrollOnTheirOwn) {
    const auto strip = make<UIScrollView>();
    strip->setFrame(CGRectMake(0, 300, 300, 100));
    peerOf<UIScrollViewPeer>(*strip).setContentSize({1000, 100});
    content->addSubview(strip);
    down(200, 450);
    move(150, 450);
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*strip).contentOffset(), (CGPoint{40, 0}));
    EXPECT_EQ(offset(), 0);
    up(150, 450);
    settle();
    down(200, 450);
    move(200, 400);
    EXPECT_EQ(offset(), 40);
    EXPECT_FALSE(peerOf<UIScrollViewPeer>(*strip).isDragging());
}

} // namespace
