#include "screen/Screen.h"

#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

namespace {

/// Counts its layouts, and asks for another one as often as told.
class LaidOutView final : public UIView {
public:
    void layoutSubviews() override {
        ++layouts;
        if (layouts < wanted)
            peer().setNeedsLayout();
    }

    int layouts = 0;
    int wanted = 0;
};

TEST(Screen, HasItsIdiomsSizeAndTraits) {
    const TestDevice device;
    const Screen pad({.idiom = Idiom::Pad, .style = UserInterfaceStyle::Dark, .scale = 2});
    EXPECT_EQ(pad.bounds().size, Screen::padSize);
    EXPECT_EQ(pad.traits().style, UserInterfaceStyle::Dark);
    EXPECT_FALSE(pad.traits().compactWidth);
    EXPECT_EQ(pad.safeAreaInsets(), (UIEdgeInsets{.top = 24, .bottom = 20}));
}

TEST(Screen, IsThePhonesByDefault) {
    const TestDevice device;
    const Screen phone({});
    EXPECT_EQ(phone.bounds(), CGRectMake(0, 0, 390, 844));
    EXPECT_TRUE(phone.traits().compactWidth);
    EXPECT_EQ(phone.traits().displayScale, 3);
    EXPECT_EQ(phone.safeAreaInsets(), (UIEdgeInsets{.top = 47, .bottom = 34}));
    EXPECT_EQ(&Screen::current(), &phone);
}

TEST(Screen, FillsItselfWithItsWindows) {
    ShownScreen shown({30, 50});
    EXPECT_EQ(shown.window->frame(), CGRectMake(0, 0, 30, 50));
    shown.screen.setSize({50, 30});
    EXPECT_EQ(shown.window->frame(), CGRectMake(0, 0, 50, 30));
}

TEST(Screen, TellsItsViewsOfAnotherStyle) {
    ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 5, 5), red);
    view->setBackgroundColor(DesktopColor::system(SystemColor::Background));
    shown.screen.setStyle(UserInterfaceStyle::Dark);
    EXPECT_EQ(view->peer().traits().style, UserInterfaceStyle::Dark);
    EXPECT_EQ(view->layer().peer().color(LayerProperty::BackgroundColor),
              systemColor(SystemColor::Background, Appearance::Dark));
}

TEST(Screen, FindsTheFrontmostViewOfTheFrontmostWindow) {
    ShownScreen shown;
    const auto back = shown.add(CGRectMake(0, 0, 20, 20), red);
    const auto front = make<UIWindow>();
    shown.screen.addWindow(front);
    const auto button = ShownScreen::add(*front, CGRectMake(0, 0, 10, 10), green);
    EXPECT_EQ(shown.screen.hitTest({5, 5}), button.get());
    EXPECT_EQ(shown.screen.hitTest({15, 15}), back.get());
    EXPECT_EQ(shown.screen.hitTest({35, 35}), nullptr);
    shown.screen.removeWindow(*front);
    EXPECT_EQ(shown.screen.hitTest({5, 5}), back.get());
}

TEST(Screen, LooksForViewsWhereAWindowIs) {
    const ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 10, 10), red);
    shown.window->setFrame(CGRectMake(20, 0, 40, 40));
    EXPECT_EQ(shown.screen.hitTest({25, 5}), view.get());
    EXPECT_EQ(shown.screen.hitTest({5, 5}), nullptr);
}

TEST(Screen, LaysOutWhatNeedsItFromTheMainQueue) {
    ShownScreen shown;
    const auto view = make<LaidOutView>();
    shown.window->addSubview(view);
    EXPECT_EQ(view->layouts, 0);
    shown.device.advance({});
    EXPECT_EQ(view->layouts, 1);
    shown.device.advance({});
    shown.screen.layoutIfNeeded();
    EXPECT_EQ(view->layouts, 1);
    view->peer().setNeedsLayout();
    shown.device.advance({});
    EXPECT_EQ(view->layouts, 2);
}

TEST(Screen, LaysOutAgainWhatALayoutAskedFor) {
    ShownScreen shown;
    const auto view = make<LaidOutView>();
    view->wanted = 3;
    shown.window->addSubview(view);
    shown.screen.layoutIfNeeded();
    EXPECT_EQ(view->layouts, 3);
}

TEST(Screen, ComesToAnEndWithAViewThatAlwaysWantsAnotherLayout) {
    ShownScreen shown;
    const auto view = make<LaidOutView>();
    view->wanted = 1000;
    shown.window->addSubview(view);
    shown.device.settle();
    EXPECT_LT(view->layouts, 20);
}

} // namespace
