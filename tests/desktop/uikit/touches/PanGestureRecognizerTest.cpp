#include "touches/PanGestureRecognizer.h"

#include "screen/TouchFixture.h"
#include "views/RecordingViews.h"

namespace {

using namespace std::chrono_literals;

class PanGestureRecognizerTest : public TouchFixture {
protected:
    PanGestureRecognizerTest() {
        view->setFrame(screen.bounds());
        window->addSubview(view);
        view->peer().addGestureRecognizer(pan);
        record(*pan, "pan", events);
    }

    Ref<UIView> view = make<UIView>();
    Ref<PanGestureRecognizer> pan = make<PanGestureRecognizer>();
};

TEST_F(PanGestureRecognizerTest, BeginsOnceTheFingerHasMovedByTen) {
    down(100, 100);
    move(109.9, 100);
    EXPECT_EQ(events, Events());
    move(100, 110);
    EXPECT_EQ(takeEvents(), Events{"pan began"});
    move(100, 101);
    up(100, 101);
    EXPECT_EQ(events, (Events{"pan changed", "pan ended"}));
}

TEST_F(PanGestureRecognizerTest, TranslationLeavesOutTheFirstTenPoints) {
    down(100, 100);
    move(130, 140);
    EXPECT_DOUBLE_EQ(pan->movement().x, 30);
    EXPECT_DOUBLE_EQ(pan->movement().y, 40);
    EXPECT_DOUBLE_EQ(pan->translation().x, 24);
    EXPECT_DOUBLE_EQ(pan->translation().y, 32);
    move(100, 100);
    EXPECT_DOUBLE_EQ(pan->translation().x, -6);
    EXPECT_DOUBLE_EQ(pan->translation().y, -8);
}

TEST_F(PanGestureRecognizerTest, VelocityIsThatOfTheLastTenthOfASecond) {
    down(100, 100);
    advance(1s);
    for (auto step = 1; step <= 10; ++step) {
        advance(10ms);
        move(100 + 5 * step, 100 - 2 * step);
    }
    EXPECT_NEAR(pan->velocity().x, 500, 1e-6);
    EXPECT_NEAR(pan->velocity().y, -200, 1e-6);
}

TEST_F(PanGestureRecognizerTest, FingerHeldStillHasNoVelocity) {
    down(100, 100);
    advance(10ms);
    move(150, 100);
    advance(101ms);
    CGPoint atEnd{1, 1};
    pan->addHandler([&] { atEnd = pan->velocity(); });
    up(150, 100);
    EXPECT_EQ(atEnd, CGPoint());
}

TEST_F(PanGestureRecognizerTest, CancelledTouchCancelsIt) {
    down(100, 100);
    move(150, 100);
    cancel();
    EXPECT_EQ(events, (Events{"pan began", "pan cancelled"}));
}

} // namespace
