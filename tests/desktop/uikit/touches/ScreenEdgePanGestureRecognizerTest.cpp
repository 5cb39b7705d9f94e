#include "touches/ScreenEdgePanGestureRecognizer.h"

#include "screen/TouchFixture.h"
#include "views/RecordingViews.h"

namespace {

/// A page with an edge pan and, in it, a view with a pan of its own, both as large as the window.
class ScreenEdgePanGestureRecognizerTest : public TouchFixture {
protected:
    ScreenEdgePanGestureRecognizerTest() {
        page->setFrame(screen.bounds());
        inner->setFrame(screen.bounds());
        window->addSubview(page);
        page->addSubview(inner);
        page->peer().addGestureRecognizer(edge);
        inner->peer().addGestureRecognizer(pan);
        record(*edge, "edge", events);
        record(*pan, "pan", events);
    }

    Ref<UIView> page = make<UIView>();
    Ref<UIView> inner = make<UIView>();
    Ref<ScreenEdgePanGestureRecognizer> edge = make<ScreenEdgePanGestureRecognizer>();
    Ref<PanGestureRecognizer> pan = make<PanGestureRecognizer>();
};

TEST_F(ScreenEdgePanGestureRecognizerTest, GoesBeforeAPanWithinItsView) {
    down(5, 400);
    move(15, 400);
    move(30, 400);
    up(30, 400);
    EXPECT_EQ(events, (Events{"edge began", "edge changed", "edge ended"}));
}

TEST_F(ScreenEdgePanGestureRecognizerTest, OtherPanGoesOnWhereThisOneFails) {
    down(5, 400);
    move(5, 420);
    EXPECT_EQ(events, Events{"pan began"}) << "downward is not inward";
    up(5, 420);
    takeEvents();
    down(20, 400);
    move(40, 400);
    EXPECT_EQ(events, Events{"pan began"}) << "too far from the edge";
    up(40, 400);
    takeEvents();
    down(19.9, 400);
    move(40, 400);
    EXPECT_EQ(events, Events{"edge began"});
}

TEST_F(ScreenEdgePanGestureRecognizerTest, TheLowerEdgeIsLeftUpward) {
    edge->setEdge(ScreenEdgePanGestureRecognizer::Edge::Bottom);
    down(200, 825);
    move(200, 805);
    EXPECT_EQ(events, Events{"edge began"});
    up(200, 805);
    takeEvents();
    down(200, 824);
    move(200, 800);
    EXPECT_EQ(events, Events{"pan began"}) << "too far from the edge";
    up(200, 800);
    takeEvents();
    down(200, 840);
    move(230, 835);
    EXPECT_EQ(events, Events{"pan began"}) << "sideways is not upward";
}

TEST_F(ScreenEdgePanGestureRecognizerTest, InACornerTheDirectionDecides) {
    const auto bottom = make<ScreenEdgePanGestureRecognizer>();
    bottom->setEdge(ScreenEdgePanGestureRecognizer::Edge::Bottom);
    page->peer().addGestureRecognizer(bottom);
    record(*bottom, "bottom", events);
    down(5, 840);
    move(6, 815);
    up(6, 815);
    EXPECT_EQ(takeEvents(), (Events{"bottom began", "bottom ended"}));
    down(5, 840);
    move(30, 839);
    up(30, 839);
    EXPECT_EQ(takeEvents(), (Events{"edge began", "edge ended"}));
}

} // namespace
