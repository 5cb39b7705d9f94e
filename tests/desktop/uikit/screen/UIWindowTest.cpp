#include "screen/UIWindow.h"

#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

namespace {

TEST(UIWindow, IsTheWindowOfTheViewsInIt) {
    const ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 5, 5), red);
    const auto inner = ShownScreen::add(*view, CGRectMake(0, 0, 5, 5), red);
    EXPECT_EQ(inner->peer().window(), shown.window.get());
    view->peer().removeFromSuperview();
    EXPECT_EQ(inner->peer().window(), nullptr);
}

TEST(UIWindow, PassesTouchesThroughThatNoneOfItsViewsTakes) {
    const ShownScreen shown;
    const auto view = shown.add(CGRectMake(10, 10, 5, 5), red);
    EXPECT_EQ(shown.window->peer().hitTest({12, 12}), view.get());
    EXPECT_EQ(shown.window->peer().hitTest({1, 1}), nullptr);
}

TEST(UIWindow, HasTheScreensTraitsAndSafeArea) {
    const ShownScreen shown({390, 844}, 2);
    EXPECT_EQ(shown.window->peer().traits(), shown.screen.traits());
    EXPECT_EQ(shown.window->peer().safeAreaInsets(), (UIEdgeInsets{.top = 47, .bottom = 34}));
}

TEST(UIWindow, IsFilledByItsRootControllersView) {
    ShownScreen shown;
    const auto controller = make<UIViewController>();
    shown.window->setRootViewController(controller);
    EXPECT_EQ(controller->view().frame(), shown.window->bounds());
    shown.screen.setSize({60, 20});
    shown.screen.layoutIfNeeded();
    EXPECT_EQ(controller->view().frame(), CGRectMake(0, 0, 60, 20));
    shown.window->setRootViewController(nullptr);
    EXPECT_EQ(controller->view().peer().superview(), nullptr);
}

} // namespace
