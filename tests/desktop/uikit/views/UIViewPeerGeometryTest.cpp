#include "CALayerPeer.h"
#include "screen/ShownScreen.h"
#include "views/UIViewPeer.h"

#include <gtest/gtest.h>

#include <functional>
#include <numbers>

namespace {

using enum UIViewAutoresizing;

Ref<UIView> box(const CGRect& frame) {
    return makeWith<UIView>(&UIView::initWithFrame, frame);
}

/// What becomes of a frame when its superview grows from 100 x 100 to 200 x 160.
CGRect resized(const CGRect& frame, UIViewAutoresizing mask) {
    const auto superview = box(CGRectMake(0, 0, 100, 100));
    const auto view = box(frame);
    view->setAutoresizingMask(mask);
    superview->addSubview(view);
    superview->setFrame(CGRectMake(0, 0, 200, 160));
    return view->frame();
}

TEST(UIViewAutoresizing, LeavesTheFrameWithoutAnyFlag) {
    const TestDevice device;
    EXPECT_EQ(resized(CGRectMake(10, 20, 30, 40), None), CGRectMake(10, 20, 30, 40));
}

TEST(UIViewAutoresizing, GivesAllToTheOneFlexiblePart) {
    const TestDevice device;
    EXPECT_EQ(resized(CGRectMake(10, 20, 30, 40), FlexibleWidth | FlexibleHeight),
              CGRectMake(10, 20, 130, 100));
    EXPECT_EQ(resized(CGRectMake(10, 20, 30, 40), FlexibleLeftMargin | FlexibleTopMargin),
              CGRectMake(110, 80, 30, 40));
    EXPECT_EQ(resized(CGRectMake(10, 20, 30, 40), FlexibleRightMargin | FlexibleBottomMargin),
              CGRectMake(10, 20, 30, 40));
}

TEST(UIViewAutoresizing, SharesInProportionAmongSeveral) {
    const TestDevice device;
    const auto frame =
        resized(CGRectMake(20, 30, 20, 40), FlexibleLeftMargin | FlexibleRightMargin | FlexibleTopMargin |
                                                FlexibleHeight | FlexibleBottomMargin);
    EXPECT_NEAR(frame.origin.x, 20 + 100 * 20.0 / 80, 1e-9);
    EXPECT_NEAR(frame.size.width, 20, 1e-9);
    EXPECT_NEAR(frame.origin.y, 30 * 1.6, 1e-9);
    EXPECT_NEAR(frame.size.height, 40 * 1.6, 1e-9);
}

TEST(UIViewAutoresizing, SharesEquallyAmongPartsWithoutALength) {
    const TestDevice device;
    EXPECT_EQ(resized(CGRectMake(0, 0, 100, 100), FlexibleLeftMargin | FlexibleRightMargin),
              CGRectMake(50, 0, 100, 100));
}

TEST(UIViewAutoresizing, GoesOnInTheSubviewsOfWhatIsResized) {
    const TestDevice device;
    const auto outer = box(CGRectMake(0, 0, 100, 100));
    const auto middle = box(CGRectMake(0, 0, 50, 50));
    const auto inner = box(CGRectMake(0, 0, 50, 50));
    middle->setAutoresizingMask(FlexibleWidth);
    inner->setAutoresizingMask(FlexibleWidth);
    outer->addSubview(middle);
    middle->addSubview(inner);
    outer->setFrame(CGRectMake(0, 0, 130, 100));
    EXPECT_EQ(inner->frame(), CGRectMake(0, 0, 80, 50));
}

TEST(UIViewGeometry, ConvertsThroughScrolledAndScaledViews) {
    const ShownScreen shown({100, 100});
    const auto outer = shown.add(CGRectMake(10, 10, 40, 40), red);
    outer->peer().setBounds(CGRectMake(0, 100, 40, 40));
    const auto inner = ShownScreen::add(*outer, CGRectMake(5, 105, 20, 20), green);
    EXPECT_EQ(inner->peer().convertToScreen(CGPoint{1, 2}), (CGPoint{16, 17}));
    EXPECT_EQ(inner->peer().convertFromScreen({16, 17}), (CGPoint{1, 2}));
    inner->peer().setTransform(AffineTransform::scale(2));
    EXPECT_EQ(inner->peer().convertToScreen(CGRectMake(0, 0, 20, 20)), CGRectMake(5, 5, 40, 40));
}

TEST(UIViewGeometry, ConvertsFromOneViewToAnother) {
    const ShownScreen shown({100, 100});
    const auto left = shown.add(CGRectMake(10, 10, 40, 40), red);
    const auto right = shown.add(CGRectMake(60, 20, 40, 40), green);
    EXPECT_EQ(left->peer().convertTo(*right, CGPoint{0, 0}), (CGPoint{-50, -10}));
    EXPECT_EQ(left->peer().convertTo(*right, CGRectMake(50, 10, 5, 6)), CGRectMake(0, 0, 5, 6));
}

TEST(UIViewGeometry, ConvertsARectangleOfATurnedViewToTheOneAroundIt) {
    const ShownScreen shown({100, 100});
    const auto turned = shown.add(CGRectMake(40, 40, 20, 20), red);
    const auto half = std::numbers::sqrt2 / 2;
    turned->peer().setTransform({.a = half, .b = half, .c = -half, .d = half});
    const auto around = turned->peer().convertTo(*shown.window, turned->bounds());
    EXPECT_NEAR(around.origin.x, 50 - 10 * std::numbers::sqrt2, 1e-9);
    EXPECT_NEAR(around.size.width, 20 * std::numbers::sqrt2, 1e-9);
    EXPECT_NEAR(around.size.height, 20 * std::numbers::sqrt2, 1e-9);
}

TEST(UIViewGeometry, KeepsACentreWhenTheSizeChanges) {
    const TestDevice device;
    const auto view = box(CGRectMake(0, 0, 20, 20));
    view->peer().setBounds(CGRectMake(0, 0, 40, 10));
    EXPECT_EQ(view->layer().peer().position(), (CGPoint{10, 10}));
    EXPECT_EQ(view->frame(), CGRectMake(-10, 5, 40, 10));
    view->setCenter({100, 100});
    EXPECT_EQ(view->frame(), CGRectMake(80, 95, 40, 10));
}

class SafeArea : public testing::Test {
protected:
    SafeArea() : shown_({390, 844}) {}

    [[nodiscard]] UIEdgeInsets insetsOf(const CGRect& frame) const {
        return shown_.add(frame, red)->peer().safeAreaInsets();
    }

    ShownScreen shown_;
};

TEST_F(SafeArea, IsWhatTheDevicesEdgesCoverOfAView) {
    EXPECT_EQ(insetsOf(CGRectMake(0, 0, 390, 844)), (UIEdgeInsets{.top = 47, .bottom = 34}));
    EXPECT_EQ(insetsOf(CGRectMake(0, 20, 390, 800)), (UIEdgeInsets{.top = 27, .bottom = 10}));
    EXPECT_EQ(insetsOf(CGRectMake(0, 100, 390, 100)), UIEdgeInsets());
}

TEST_F(SafeArea, IsNotCutByWhatLiesBeyondTheScreen) {
    EXPECT_EQ(insetsOf(CGRectMake(0, -100, 390, 2000)), (UIEdgeInsets{.top = 47, .bottom = 34}));
    const auto row = shown_.add(CGRectMake(0, 100, 390, 44), red);
    const auto tall = ShownScreen::add(*row, CGRectMake(0, -20, 390, 100), green);
    EXPECT_EQ(tall->peer().safeAreaInsets(), UIEdgeInsets());
}

TEST_F(SafeArea, GrowsByWhatAViewAddsForAllWithinIt) {
    const auto page = shown_.add(CGRectMake(0, 0, 390, 844), red);
    const auto content = ShownScreen::add(*page, CGRectMake(0, 50, 390, 794), green);
    page->peer().setAdditionalSafeAreaInsets({.top = 44});
    EXPECT_EQ(page->peer().safeAreaInsets(), (UIEdgeInsets{.top = 91, .bottom = 34}));
    EXPECT_EQ(content->peer().safeAreaInsets(), (UIEdgeInsets{.top = 41, .bottom = 34}));
}

/// Calls back when its safe area has changed.
class SafePeer final : public UIViewPeer {
public:
    explicit SafePeer(std::function<void()> changed) : changed_(std::move(changed)) {}

    void safeAreaInsetsDidChange() override { changed_(); }

private:
    std::function<void()> changed_;
};

class SafeView final : public UIView {
public:
    explicit SafeView(std::function<void()> changed)
        : UIView(std::make_unique<SafePeer>(std::move(changed))) {}
};

TEST_F(SafeArea, TellsAViewOfChangesOnce) {
    auto changes = 0;
    const auto page = shown_.add(CGRectMake(0, 0, 390, 844), red);
    const auto view = make<SafeView>([&changes] { ++changes; });
    view->setFrame(CGRectMake(0, 0, 390, 844));
    page->addSubview(view);
    shown_.screen.layoutIfNeeded();
    EXPECT_EQ(changes, 1);
    page->peer().setAdditionalSafeAreaInsets({.top = 44});
    EXPECT_EQ(changes, 2);
    shown_.screen.layoutIfNeeded();
    EXPECT_EQ(changes, 2);
    view->setFrame(CGRectMake(0, 200, 390, 300));
    shown_.screen.layoutIfNeeded();
    EXPECT_EQ(changes, 3);
}

} // namespace
