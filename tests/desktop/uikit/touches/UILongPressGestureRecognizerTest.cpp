#include "touches/UILongPressGestureRecognizer.h"

#include "screen/TouchFixture.h"
#include "views/RecordingViews.h"

namespace {

using namespace std::chrono_literals;

class UILongPressGestureRecognizerTest : public TouchFixture {
protected:
    UILongPressGestureRecognizerTest() {
        view->setFrame(screen.bounds());
        window->addSubview(view);
        view->peer().addGestureRecognizer(press);
        record(*press, "press", events);
    }

    Ref<RecordingView> view = make<RecordingView>("view", events);
    Ref<UILongPressGestureRecognizer> press = make<UILongPressGestureRecognizer>();
};

TEST_F(UILongPressGestureRecognizerTest, BeginsAfterHalfASecond) {
    down(100, 100);
    advance(499ms);
    EXPECT_EQ(takeEvents(), Events{"view began"});
    advance(1ms);
    EXPECT_EQ(takeEvents(), (Events{"view cancelled", "press began"}));
    move(200, 100);
    up(200, 100);
    EXPECT_EQ(events, (Events{"press changed", "press ended"}));
}

TEST_F(UILongPressGestureRecognizerTest, FingerLiftedEarlyIsNoPress) {
    down(100, 100);
    advance(499ms);
    up(100, 100);
    settle();
    EXPECT_EQ(events, (Events{"view began", "view ended"}));
}

TEST_F(UILongPressGestureRecognizerTest, FingerMayStrayByTenPointsBeforeIt) {
    down(100, 100);
    move(110, 100);
    advance(500ms);
    EXPECT_EQ(press->state(), GestureRecognizer::State::Began);
    cancel();
    EXPECT_EQ(takeEvents().back(), "press cancelled");
    down(100, 100);
    move(110.1, 100);
    advance(500ms);
    EXPECT_EQ(press->state(), GestureRecognizer::State::Failed);
}

TEST_F(UILongPressGestureRecognizerTest, TakesAsLongAsItIsTold) {
    press->setMinimumPressDuration(100ms);
    down(100, 100);
    advance(100ms);
    EXPECT_EQ(events.back(), "press began");
}

TEST_F(UILongPressGestureRecognizerTest, ViewMayEndBeforeIt) {
    down(100, 100);
    view->peer().removeFromSuperview();
    view = nullptr;
    advance(1s);
    EXPECT_EQ(events, (Events{"view began", "view cancelled"}));
}

} // namespace
