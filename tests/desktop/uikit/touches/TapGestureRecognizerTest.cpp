#include "touches/TapGestureRecognizer.h"

#include "screen/TouchFixture.h"
#include "views/RecordingViews.h"

namespace {

/// A view that is as large as the window, with a tap recogniser.
class TapGestureRecognizerTest : public TouchFixture {
protected:
    TapGestureRecognizerTest() {
        view->setFrame(screen.bounds());
        window->addSubview(view);
        view->peer().addGestureRecognizer(tapRecognizer);
        record(*tapRecognizer, "tap", events);
    }

    Ref<UIView> view = make<UIView>();
    Ref<TapGestureRecognizer> tapRecognizer = make<TapGestureRecognizer>();
};

TEST_F(TapGestureRecognizerTest, FingerMayStrayByTenPoints) {
    down(100, 100);
    move(110, 100);
    up(100, 110);
    EXPECT_EQ(events, Events{"tap ended"});
}

TEST_F(TapGestureRecognizerTest, FailsBeyondTenPoints) {
    down(100, 100);
    move(110.1, 100);
    move(100, 100);
    up(100, 100);
    down(100, 100);
    up(108, 108);
    EXPECT_EQ(events, Events());
    tap(100, 100);
    EXPECT_EQ(events, Events{"tap ended"}) << "a failure is over with the touch";
}

TEST_F(TapGestureRecognizerTest, CancelledTouchIsNoTap) {
    down(100, 100);
    cancel();
    EXPECT_EQ(events, Events());
}

TEST_F(TapGestureRecognizerTest, TellsWhereTheFingerWas) {
    tap(100, 100);
    EXPECT_EQ(tapRecognizer->location(), (CGPoint{100, 100}));
}

} // namespace
