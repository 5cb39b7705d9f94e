#include "touches/DesktopTouch.h"

#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

TEST(DesktopTouch, TellsWhereAndWhenItWasMoved) {
    const auto touch = make<DesktopTouch>(CGPoint{1, 2}, 10ms);
    EXPECT_EQ(touch->phase(), TouchPhase::Began);
    EXPECT_EQ(touch->place(), (CGPoint{1, 2}));
    touch->moveTo({3, 4}, TouchPhase::Moved, 20ms);
    EXPECT_EQ(touch->place(), (CGPoint{3, 4}));
    EXPECT_EQ(touch->phase(), TouchPhase::Moved);
    EXPECT_EQ(touch->time(), 20ms);
}

TEST(DesktopTouch, TellsItsPlaceInAView) {
    const ShownScreen shown;
    const auto view = shown.add(CGRectMake(10, 5, 20, 20), red);
    const auto touch = make<DesktopTouch>(CGPoint{12, 9}, 0ms);
    EXPECT_EQ(touch->locationInView(*view), (CGPoint{2, 4}));
}

TEST(DesktopTouch, ForgetsAViewThatIsGone) {
    const TestDevice device;
    const auto touch = make<DesktopTouch>(CGPoint{}, 0ms);
    auto view = make<UIView>();
    touch->setView(view);
    EXPECT_EQ(touch->view(), view);
    view = nullptr;
    EXPECT_FALSE(touch->view());
}

} // namespace
